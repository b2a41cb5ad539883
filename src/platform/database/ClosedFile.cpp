#include "platform/database/ClosedFile.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/PageCheck.h"

#include <QFileInfo>

#include <sqlcipher/sqlite3.h>

namespace {

// Texts with %1 where they name the file.
[[noreturn]] void ThrowBad(const char* marathi, const char* english, const QString& file)
{
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(QString::fromUtf8(marathi).arg(file), QString::fromUtf8(english).arg(file)));
}

void RequireReadable(const QString& file, const QString& shown)
{
    const QFileInfo info(file);
    if (!info.isFile())
        throw RunTimeError(RunTimeError::FileNotFound,
            Sentences(QStringLiteral("\"%1\" ही फाइल सापडली नाही.").arg(shown),
                QStringLiteral("The file \"%1\" was not found.").arg(shown)));
    if (!info.isReadable())
        throw RunTimeError(RunTimeError::FileAccess,
            Sentences(QStringLiteral("\"%1\" ही फाइल वाचता येत नाही. तिची परवानगी तपासा.").arg(shown),
                QStringLiteral("The file \"%1\" can't be read.").arg(shown)));
    if (info.size() == 0)
        ThrowBad("\"%1\" ही फाइल रिकामी आहे.", "The file \"%1\" is empty.", shown);
}

void RequireRightPassword(const FirstPage& page, const QString& file, const QString& shown)
{
    const bool isOfWholePages = QFileInfo(file).size() % DatabaseFile::PageSize == 0;
    if (page.IsUnreadable() && isOfWholePages)
        ThrowBad("\"%1\" ही फाइल हिशेबाची वही नाही, किंवा तिचा पासवर्ड वेगळा आहे.",
            "The file \"%1\" isn't a database, or it has another password.", shown);
    if (page.IsUnreadable())
        ThrowBad("\"%1\" ही फाइल हिशेबाची वही नाही, किंवा ती अपुरी आहे.",
            "The file \"%1\" isn't a database, or it is cut short.", shown);
    if (page.IsOfTooFewPages() || !isOfWholePages)
        ThrowBad("\"%1\" ही फाइल अपुरी आहे; तिचा काही भाग नाही.",
            "The file \"%1\" is cut short: a part of it is missing.", shown);
    if (!page.IsReadable())
        DatabaseErrors::ThrowFailure(nullptr, page.code, {});
}

// Runs a query on the file and calls `row` for each row.
template <class Row> void Read(sqlite3* handle, const QString& query, Row row)
{
    sqlite3_stmt* statement = nullptr;
    int code = sqlite3_prepare_v2(handle, query.toUtf8().constData(), -1, &statement, nullptr);
    while (code == SQLITE_OK || code == SQLITE_ROW) {
        code = sqlite3_step(statement);
        if (code == SQLITE_ROW)
            row(statement);
    }
    sqlite3_finalize(statement);
    if (code != SQLITE_DONE)
        DatabaseErrors::ThrowFailure(handle, code, query);
}

QString TextOf(sqlite3_stmt* statement)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
}

QString Named(QString name)
{
    return u'"' + name.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}

ClosedFile::ClosedFile(const QString& file, const QString& password, const QString& shown)
    : m_file(file)
    , m_password(password)
    , m_shown(shown.isEmpty() ? QFileInfo(file).fileName() : shown)
{
    RequireReadable(m_file, m_shown);
    RequireRightPassword(FirstPage::OfFile(m_file, m_password), m_file, m_shown);
    m_opened = std::make_unique<KeyedFile>(m_file, m_password, KeyedFile::Way::LookOnly);
    if (m_opened->Code() != SQLITE_OK)
        DatabaseErrors::ThrowFailure(m_opened->Handle(), m_opened->Code(), {});
}

void ClosedFile::RequireSound() const
{
    const QStringList damaged = PageCheck::DamagedTables([this] {
        KeyedFile opened(m_file, m_password, KeyedFile::Way::LookOnly);
        if (opened.Code() != SQLITE_OK)
            DatabaseErrors::ThrowFailure(opened.Handle(), opened.Code(), {});
        return opened.LetGo();
    });
    if (damaged.isEmpty())
        return;
    const QString tables =
        damaged.first() == u"?" ? QString() : QStringLiteral(" (%1)").arg(damaged.join(QStringLiteral(", ")));
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(QStringLiteral("\"%1\" ही फाइल बिघडली आहे%2.").arg(m_shown, tables),
            QStringLiteral("The file \"%1\" is damaged%2.").arg(m_shown, tables)));
}

QMap<QString, qint64> ClosedFile::Rows() const
{
    QMap<QString, qint64> rows;
    Read(m_opened->Handle(),
        QStringLiteral("select name from sqlite_master where type='table' and name not like 'sqlite%'"),
        [&](sqlite3_stmt* row) { rows.insert(TextOf(row), 0); });
    for (auto table = rows.begin(); table != rows.end(); ++table)
        Read(m_opened->Handle(), QStringLiteral("select count(*) from ") + Named(table.key()),
            [&](sqlite3_stmt* row) { table.value() = sqlite3_column_int64(row, 0); });
    return rows;
}

QDate ClosedFile::NewestDay(const QString& table, const QString& column) const
{
    QDate newest;
    Read(m_opened->Handle(), QStringLiteral("select max(%1) from %2").arg(Named(column), Named(table)),
        [&](sqlite3_stmt* row) { newest = QDate::fromString(TextOf(row), Qt::ISODate); });
    return newest;
}
