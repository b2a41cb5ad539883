#include "platform/text/RunTimeError.h"

RunTimeError::RunTimeError(int number, QString happened, QString statement)
    : m_number(number)
    , m_happened(std::move(happened))
    , m_statement(std::move(statement))
    , m_what(Text().toUtf8())
{
}

QString RunTimeError::Text() const
{
    QString text = QStringLiteral("Run-time error '%1':\n\n%2").arg(m_number).arg(m_happened);
    if (!m_statement.isEmpty())
        text += QStringLiteral("\n\n") + m_statement;
    return text;
}

QString Sentences(QStringView marathi, const QString& english)
{
    return marathi.toString() + u'\n' + english;
}
