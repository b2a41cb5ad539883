#include "platform/database/SafeCopy.h"

#include "platform/database/BooksOnDisk.h"
#include "platform/database/Disk.h"
#include "platform/database/FileState.h"
#include "platform/text/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace {

[[noreturn]] void Refuse(QStringView marathi, const char* english, const QString& file)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(marathi, QString::fromUtf8(english).arg(QDir::toNativeSeparators(file))));
}

[[noreturn]] void ThrowNotCopied(const QString& source)
{
    Refuse(u"फाइल वाचता येत नाही. ड्राइव्ह जोडलेला आहे का ते पाहा. काहीही बदलले नाही.",
        "%1 can't be read. Is its drive there? Nothing was changed.", source);
}

[[noreturn]] void ThrowNoFolder(const QString& folder)
{
    Refuse(u"फोल्डर सापडले नाही. ड्राइव्ह जोडलेला आहे का आणि नाव बरोबर आहे का ते पाहा. काहीही बदलले नाही.",
        "There is no folder %1. Nothing was changed.", folder);
}

[[noreturn]] void ThrowNoRights(const QString& folder)
{
    Refuse(u"या फोल्डरमध्ये लिहिता येत नाही. दुसरे फोल्डर निवडा किंवा परवानगी तपासा. काहीही बदलले नाही.",
        "Nothing may be written into the folder %1. Nothing was changed.", folder);
}

// Nothing was renamed yet, so what is there is as it was.
[[noreturn]] void ThrowUnwritten(const std::error_code& failed, const QString& target)
{
    if (failed == std::errc::no_space_on_device)
        Refuse(u"डिस्कवर जागा नाही; प्रत झाली नाही. जागा करा आणि पुन्हा करा. जुनी फाइल आहे तशीच आहे.",
            "The disk has no room for %1. An older one is as it was.", target);
    const QString why = QString::fromStdString(failed.message());
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"डिस्कवर लिहिता आले नाही; प्रत झाली नाही. ड्राइव्ह जोडलेला आहे का ते पाहा. जुनी फाइल आहे तशीच आहे.",
            QStringLiteral("%1 can't be written: %2. An older one is as it was.")
                .arg(QDir::toNativeSeparators(target), why)));
}

void Require(const std::error_code& failed, const QString& target)
{
    if (failed)
        ThrowUnwritten(failed, target);
}

// While the database engine has a file open, nobody else may open it: closing it would drop the engine's
// locks.
void RequireClosed(const QString& file)
{
    if (BooksOnDisk::AreReachedBy(file))
        Refuse(u"हिशेबाची वही उघडी आहे; तिची प्रत करता येत नाही.", "%1 belongs to books that are open.", file);
}

// Whether both names lead to the same file.
bool AreOneFile(const QString& first, const QString& second)
{
    const FileState one = FileState::Of(first);
    if (one.number != 0)
        return one.IsSameFileAs(FileState::Of(second));
    const QString canonical = QFileInfo(first).canonicalFilePath();
    return canonical == QFileInfo(second).canonicalFilePath() && !canonical.isEmpty();
}

void RequireSource(const QString& source)
{
    if (!QFileInfo(source).isFile())
        throw RunTimeError(RunTimeError::FileNotFound,
            Sentences(QStringLiteral("\"%1\" ही फाइल सापडली नाही. काहीही बदलले नाही.")
                          .arg(QFileInfo(source).fileName()),
                QStringLiteral("%1 is not there. Nothing was changed.")
                    .arg(QDir::toNativeSeparators(source))));
}

// The owner's right is asked, too: an administrator may write into a folder that was made read-only.
void RequirePlace(const QString& target)
{
    const QFileInfo folder(QFileInfo(target).path());
    if (!folder.isDir())
        ThrowNoFolder(folder.filePath());
    if (QFileInfo(target).isDir())
        Refuse(u"या नावाचे फोल्डर आहे. फाइलला दुसरे नाव द्या. काहीही बदलले नाही.",
            "%1 is a folder. Nothing was changed.", target);
    if (!folder.isWritable() || !folder.permission(QFile::WriteOwner))
        ThrowNoRights(folder.filePath());
}

void CopyBytes(QFile& source, QFile& copy, const SafeCopy::Progress& progress)
{
    constexpr qint64 pieceSize = 1 << 20;
    const qint64 all = source.size();
    qint64 done = 0;
    while (done < all) {
        const QByteArray piece = source.read(pieceSize);
        if (piece.isEmpty())
            ThrowNotCopied(source.fileName());
        Require(Disk::Current().Write(copy, piece), copy.fileName());
        done += piece.size();
        if (progress)
            progress(done, all);
    }
}

}

void SafeCopy::Copy(const QString& from, const QString& to, const Check& check, const Progress& progress)
{
    RequireClosed(from);
    RequireClosed(to);
    RequireSource(from);
    RequirePlace(to);
    if (AreOneFile(from, to))
        Refuse(u"ही फाइल स्वतःच्या जागी ठेवता येत नाही. दुसरे नाव किंवा दुसरे फोल्डर द्या. काहीही बदलले नाही.",
            "%1 is its own target. Nothing was changed.", from);

    QFile source(from);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        ThrowNotCopied(from);
    QFile copy(to + QStringLiteral(".part")); // overwrites one that a power cut left behind
    auto leavings = qScopeGuard([&copy] {
        copy.close();
        QFile::remove(copy.fileName()); // copy.remove() would give up if closing fails
    });
    if (!copy.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered,
            QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        ThrowNoRights(QFileInfo(to).path());
    CopyBytes(source, copy, progress);
    copy.close();
    Require(Disk::Current().Sync(copy.fileName()), to);
    if (check)
        check(copy.fileName());
    Require(Disk::Current().Move(copy.fileName(), to), to);
    leavings.dismiss();
    // The copy stands in its place; file systems that can't sync a folder are left as they are.
    Disk::Current().Sync(QFileInfo(to).path());
}
