#include "platform/database/DatabaseErrors.h"

#include "platform/database/KeyAnswer.h"

#include <sqlcipher/sqlite3.h>

namespace {

// The greatest length of a statement in a box; a longer one would push the buttons off the screen.
constexpr qsizetype ShownLength = 500;

QString Shown(QStringView statement)
{
    QString shown = statement.left(ShownLength).toString();
    shown.replace(QChar::Null, QChar::ReplacementCharacter);
    if (statement.size() > ShownLength)
        shown += QChar(0x2026);
    return shown;
}

// Texts with %1 where they say what has become of the entry.
struct Reason {
    int code;
    const char16_t* marathi;
    const char* english;
};

constexpr Reason Reasons[] = {
    {SQLITE_FULL, u"डिस्क भरली आहे; %1. डिस्कवर जागा करा आणि पुन्हा सुरू करा.",
        "The disk is full; %1. Make room on the disk and start again."},
    {SQLITE_BUSY, u"डेटाबेस दुसरा प्रोग्राम वापरत आहे; %1. तो बंद करा आणि पुन्हा सुरू करा.",
        "The database is in use by another program; %1. Close it and start again."},
    {SQLITE_LOCKED, u"डेटाबेस वापरात आहे; %1. पुन्हा सुरू करा.", "The database is locked; %1. Start again."},
    {SQLITE_IOERR, u"डिस्कवर वाचता किंवा लिहिता आले नाही; %1. डिस्क तपासा आणि पुन्हा सुरू करा.",
        "The disk can't be read or written; %1. Check the disk and start again."},
    {SQLITE_CORRUPT, u"हिशेबाची फाइल बिघडली आहे. शेवटचा बॅकअप परत आणा.",
        "The database file is damaged. Restore the last backup."},
    {SQLITE_NOTADB, u"हिशेबाची फाइल बिघडली आहे. शेवटचा बॅकअप परत आणा.",
        "The database file is damaged. Restore the last backup."},
    {SQLITE_READONLY, u"हिशेबाच्या फाइलमध्ये लिहिता येत नाही; %1. फाइलची परवानगी तपासा.",
        "The database file can't be written; %1. Check the permissions of the file."},
    {SQLITE_CANTOPEN, u"हिशेबाची फाइल उघडता आली नाही. फोल्डरची परवानगी तपासा.",
        "The database file can't be opened. Check the permissions of its folder."},
    {SQLITE_NOMEM, u"मेमरी संपली आहे. दुसरे प्रोग्राम बंद करा आणि पुन्हा सुरू करा.",
        "There is no memory left. Close other programs and start again."},
    {SQLITE_AUTH, u"हे विधान चालवू दिले जात नाही; काहीही बदलले नाही.",
        "The statement isn't one of the system's; nothing was changed."},
    {SQLITE_INTERRUPT, u"हे काम फार वेळ चालले म्हणून थांबवले; %1. पुन्हा सुरू करा.",
        "The statement took too long and was ended; %1. Start again."},
    {SQLITE_MISMATCH, u"माहितीचा प्रकार जुळत नाही; %1.", "Type mismatch; %1."},
};

QString Filled(QString text, QStringView nothingSaved, QStringView mayBeSaved)
{
    const QStringView outcome = KeyAnswer::HasSaved() ? mayBeSaved : nothingSaved;
    return text.replace(QStringLiteral("%1"), outcome.toString());
}

// `english` goes on with what only the helper wants to know.
QString Told(QStringView marathi, const char* english, const QString& detail = {})
{
    const QString clerks =
        Filled(marathi.toString(), u"काहीही जतन झाले नाही", u"शेवटची नोंद पुन्हा भरण्याआधी ती आहे का ते पाहा");
    const QString helpers = Filled(QString::fromUtf8(english), u"nothing was saved",
        u"look whether the last entry is there before you key it again");
    return Sentences(clerks, helpers + detail);
}

// The engine reports a full disk for the database file, but not for the index of the log, which takes 32 KB
// at the start.
bool IsFull(sqlite3* handle, int code)
{
    return (code & 0xFF) == SQLITE_IOERR && sqlite3_extended_errcode(handle) == SQLITE_IOERR_SHMSIZE;
}

}

void DatabaseErrors::ThrowRolledBack()
{
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Told(u"काम अर्धवट राहिले; %1. पुन्हा सुरू करा.",
            "The transaction was rolled back after a failure; %1. Start again."));
}

void DatabaseErrors::ThrowGivenUp()
{
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Told(u"कामाचा एक भाग पूर्ण झाला नाही; %1.", "A part of the transaction was given up; %1."));
}

void DatabaseErrors::ThrowRefused(const char* english, QStringView statement)
{
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(u"हे काम करता येत नाही; काहीही बदलले नाही.", QString::fromUtf8(english)), Shown(statement));
}

void DatabaseErrors::ThrowApostrophe(QStringView statement)
{
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Told(u"माहितीत ' हे चिन्ह चालत नाही; %1. त्या चिन्हाशिवाय पुन्हा भरा.",
            "A value holds an apostrophe ('); %1."),
        Shown(statement));
}

void DatabaseErrors::ThrowMismatch(QStringView value, QStringView statement)
{
    throw RunTimeError(RunTimeError::TypeMismatch,
        Told(u"माहितीचा प्रकार जुळत नाही; %1.", "Type mismatch; %1: ", Shown(value)), Shown(statement));
}

void DatabaseErrors::ThrowOverflow(QStringView value, QStringView statement)
{
    throw RunTimeError(RunTimeError::Overflow, Told(u"संख्या फार मोठी आहे; %1.", "Overflow; %1: ", Shown(value)),
        Shown(statement));
}

RunTimeError DatabaseErrors::Failure(sqlite3* handle, int code, QStringView statement)
{
    const int primary = IsFull(handle, code) ? SQLITE_FULL : code & 0xFF;
    const QString detail = QString::fromUtf8(handle ? sqlite3_errmsg(handle) : sqlite3_errstr(code));
    for (const Reason& reason : Reasons) {
        if (reason.code != primary)
            continue;
        const int number =
            primary == SQLITE_MISMATCH ? RunTimeError::TypeMismatch : RunTimeError::DatabaseFailure;
        const QString asTold = QStringLiteral(" (%1, %2)").arg(detail, QString::number(code));
        return RunTimeError(number, Told(reason.marathi, reason.english, asTold), Shown(statement));
    }
    return RunTimeError(RunTimeError::DatabaseFailure,
        Told(u"हे काम करता आले नाही; %1.", "The statement failed; %1: ", detail), Shown(statement));
}

RunTimeError DatabaseErrors::CommitFailure(sqlite3* handle, int code)
{
    const bool isFull = (code & 0xFF) == SQLITE_FULL;
    return RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(isFull ? u"डिस्क भरली आहे. शेवटची नोंद जतन झाली की नाही ते माहीत नाही. डिस्कवर जागा करा, पुन्हा सुरू "
                           u"करा आणि ती नोंद पुन्हा "
                           u"भरण्याआधी ती आहे का ते पाहा."
                         : u"डिस्कवर लिहिता आले नाही. शेवटची नोंद जतन झाली की नाही ते माहीत नाही. डिस्क तपासा, "
                           u"पुन्हा सुरू करा आणि ती नोंद "
                           u"पुन्हा भरण्याआधी ती आहे का ते पाहा.",
            QStringLiteral(
                "%1. It is not known whether the last entry was kept. Start again and look for it before "
                "you key it again. (%2, %3)")
                .arg(
                    isFull ? QStringLiteral("The disk is full") : QStringLiteral("The disk can't be written"),
                    QString::fromUtf8(sqlite3_errmsg(handle)), QString::number(code))));
}

void DatabaseErrors::ThrowFilesChanged()
{
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(u"हिशेबाची फाइल कार्यक्रम चालू असताना बदलली, काढली किंवा हलवली गेली. ही नोंद जतन झाली नाही. योग्य "
                  u"फाइल जागेवर ठेवा, पुन्हा "
                  u"सुरू करा आणि शेवटच्या नोंदी तपासा.",
            QStringLiteral(
                "The database file or its log was replaced, cut or moved while the program was running. "
                "This entry was not saved. Put the right file in its place, start again, and look at "
                "the last entries.")));
}

void DatabaseErrors::ThrowLogGone(bool isBroughtIn)
{
    if (!isBroughtIn)
        throw RunTimeError(RunTimeError::DatabaseFailure,
            Sentences(u"नोंदींची फाइल (-wal) कार्यक्रम चालू असताना काढली गेली. ही नोंद जतन झाली नाही. पुन्हा सुरू करा "
                      u"आणि शेवटच्या नोंदी आहेत का ते "
                      u"पाहा.",
                QStringLiteral(
                    "The log beside the database file was removed while the program was running. This "
                    "entry was not saved. Start again and look whether the last entries are there.")));
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(u"नोंदींची फाइल (-wal) कार्यक्रम चालू असताना काढली गेली. आधीच्या नोंदी जतन केल्या आहेत; ही शेवटची नोंद "
                  u"जतन झाली नाही. पुन्हा सुरू "
                  u"करा आणि ती पुन्हा भरा.",
            QStringLiteral(
                "The log beside the database file was removed while the program was running. The earlier "
                "entries were brought into the books; this one was not saved. Start again and key it "
                "again.")));
}

void DatabaseErrors::ThrowFailure(sqlite3* handle, int code, QStringView statement)
{
    throw Failure(handle, code, statement);
}

void DatabaseErrors::ThrowClosed()
{
    throw RunTimeError(RunTimeError::ConnectionClosed,
        Sentences(u"डेटाबेस किंवा यादी बंद आहे.", QStringLiteral("The connection or the record set is closed.")));
}
