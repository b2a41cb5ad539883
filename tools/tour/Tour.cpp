#include "tools/tour/Tour.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/DataGrid.h"
#include "platform/text/Shivaji01.h"

#include <QDir>
#include <QFile>
#include <QLabel>

Tour::Tour(Clerk& clerk, const QString& folder) : m_clerk(clerk), m_folder(QDir(folder).absolutePath())
{
    QDir().mkpath(folder);
}

void Tour::Step(const QString& name, const QString& keys)
{
    m_clerk.Type(keys);
    const QString file = NextPicture(name);
    m_clerk.Picture(QDir(m_folder).filePath(file));
    NotePicture(file);
}

void Tour::OpenEntry(const QString& name, int place)
{
    const QString keys = QStringLiteral("{HOME}") + QStringLiteral("{DOWN}").repeated(place) + Enter;
    if (name.isEmpty())
        Type(keys);
    else
        Step(name, keys);
}

QString Tour::NextPicture(const QString& name)
{
    return QStringLiteral("%1-%2.png").arg(++m_pictures, 3, 10, QLatin1Char('0')).arg(name);
}

void Tour::NotePicture(const QString& file)
{
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

void Tour::CheckReads(const QString& control, const QString& expected)
{
    const auto* label = m_clerk.Top().findChild<QLabel*>(control);
    Check(m_clerk.ScreenName() + u' ' + control, label ? label->text() : m_clerk.Reads(control), expected);
}

void Tour::CheckColumn(const QString& list, QStringView field, const QString& expected)
{
    QStringList found;
    if (const auto* grid = dynamic_cast<const DataGrid*>(m_clerk.Top().Find(list)))
        for (int row = 0; row < grid->Rows(); ++row)
            found.append(grid->Value(row, field).Text());
    Check(m_clerk.ScreenName() + u' ' + field, found.join(u' '), expected);
}

void Tour::KeepReport(const QString& name, const QString& text, int times)
{
    Check(name + QStringLiteral(", shown on"), m_clerk.ScreenName(), QStringLiteral("frmReportPreview"));
    Step(name, {});
    Type(QStringLiteral("^f") + KeysOf(text) + Enter);
    CheckReads(QStringLiteral("lblState"), QStringLiteral("सापडले: 1 / %1").arg(times));

    const QString path = QDir(m_folder).filePath(name + QStringLiteral(".pdf"));
    QFile::remove(path); // from an earlier tour
    Type(QStringLiteral("^s") + KeysOf(name) + Enter + KeysOf(m_folder));
    Type(Enter + Enter);
    CheckReads(QStringLiteral("lblState"), QStringLiteral("जतन केले: ") + path);
    CheckFile(name, path);
    Type(Escape);
    Check(name + QStringLiteral(", left"), QString::number(m_clerk.ScreenName() != u"frmReportPreview"),
        QStringLiteral("1"));
}

// Checks that a PDF was written completely.
void Tour::CheckFile(const QString& what, const QString& path)
{
    QFile file(path);
    const QByteArray pdf = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const bool whole = pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF");
    Check(what + QStringLiteral(", file"), whole ? QStringLiteral("a whole PDF") : QStringLiteral("none"),
        QStringLiteral("a whole PDF"));
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

QString KeysOf(const char16_t* seen)
{
    return KeysOf(Shivaji01::FromUnicode(seen));
}

QString Federation()
{
    return Shivaji01::FromUnicode(u"सातारा जिल्हा दूध संघ");
}

QString DeliveryKeys(const char* member, const char* liters, const char* fat)
{
    return Enter + QLatin1String(member) + Enter + QLatin1String(liters) + Enter + QLatin1String(fat) + Enter
        + Enter + Enter;
}
