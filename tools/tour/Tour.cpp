#include "Tour.h"

#include "MdlAccounts.h"
#include "Recordset.h"

#include <QDir>
#include <QFile>

Tour::Tour(Clerk& clerk, const QString& folder) : m_clerk(clerk), m_folder(folder)
{
    QDir().mkpath(folder);
}

void Tour::Step(const QString& name, const QString& keys)
{
    m_clerk.Type(keys);
    const QString file = QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name);
    m_clerk.Picture(QDir(m_folder).filePath(file));
    if (!QFile::exists(QDir(m_folder).filePath(file)))
        Check(file, QStringLiteral("missing"), QStringLiteral("saved"));
    m_summary.append(QStringLiteral("picture  ") + file);
}

void Tour::Check(const QString& what, const QString& found, const QString& expected)
{
    const bool right = found == expected;
    m_summary.append(QStringLiteral("%1  %2: %3")
                         .arg(right ? QStringLiteral("right  ") : QStringLiteral("WRONG  "), what, found));
    if (right)
        return;
    ++m_wrong;
    m_summary.append(QStringLiteral("         expected: ") + expected);
}

void Tour::CheckRows(const QString& what, const QString& query, const QStringList& expected)
{
    QStringList found;
    for (Recordset rows(gCn, query); !rows.Eof(); rows.MoveNext()) {
        QStringList fields;
        for (int at = 0; at < rows.Columns(); ++at)
            fields.append(rows.At(at).Text());
        found.append(fields.join(u'|'));
    }
    Check(what + QStringLiteral(", rows"), QString::number(found.size()), QString::number(expected.size()));
    for (qsizetype at = 0; at < std::max(found.size(), expected.size()); ++at)
        Check(what, found.value(at), expected.value(at));
}

bool Tour::Finish()
{
    m_summary.append(m_wrong == 0 ? QStringLiteral("everything is right")
                                  : QStringLiteral("%1 checks went wrong").arg(m_wrong));
    QFile file(QDir(m_folder).filePath(QStringLiteral("summary.txt")));
    const QByteArray text = m_summary.join(u'\n').toUtf8() + '\n';
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && m_wrong == 0;
}

QString KeysOf(const QString& stored)
{
    QString keys;
    for (QChar c : stored) {
        const bool special = c == u'+' || c == u'^' || c == u'%' || c == u'{' || c == u'}';
        keys += special ? QString(u'{' + QString(c) + u'}') : QString(c);
    }
    return keys;
}
