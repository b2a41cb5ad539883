#include "platform/shell/SingleInstance.h"

#include "platform/text/RunTimeError.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

QString LockIn(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral("Vetrolan.lock"));
}

}

#ifdef Q_OS_WIN

namespace {

[[noreturn]] void Refuse(const QString& path, const QString& why)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(
            u"हिशेबाच्या फोल्डरमध्ये लिहिता येत नाही.", QStringLiteral("%1 cannot be locked: %2").arg(path, why)));
}

}

// The lock is a file that is opened without sharing. The system closes and removes it however the process
// ends.
class SingleInstance::Private {
public:
    explicit Private(const QString& folder)
    {
        const QString path = LockIn(folder);
        m_file = CreateFileW(reinterpret_cast<LPCWSTR>(path.utf16()), GENERIC_READ | GENERIC_WRITE, 0,
            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (!Taken() && GetLastError() != ERROR_SHARING_VIOLATION)
            Refuse(path, qt_error_string());
    }
    ~Private()
    {
        if (Taken())
            CloseHandle(m_file);
    }
    Q_DISABLE_COPY_MOVE(Private)

    bool Taken() const { return m_file != INVALID_HANDLE_VALUE; }

private:
    HANDLE m_file = INVALID_HANDLE_VALUE;
};

#else

namespace {

QString NameOf(uid_t user)
{
    const passwd* known = getpwuid(user);
    return known ? QString::fromLocal8Bit(known->pw_name) : QString::number(user);
}

[[noreturn]] void Refuse(const QString& folder, const QString& path, int why)
{
    const QString english = QStringLiteral("%1 cannot be locked: %2").arg(path, qt_error_string(why));
    if (why != EACCES && why != EPERM)
        throw RunTimeError(
            RunTimeError::FileAccess, Sentences(u"हिशेबाच्या फोल्डरमध्ये लिहिता येत नाही.", english));
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"हिशेबाचे फोल्डर दुसऱ्या वापरकर्त्याच्या नावावर आहे, म्हणून उघडता येत नाही. संगणक "
                  u"सांभाळणाऱ्याला खालची आज्ञा द्यायला सांगा.",
            english
                + QStringLiteral("\nsudo chown -R %1: '%2'")
                      .arg(NameOf(geteuid()), QDir(folder).absolutePath())));
}

// Files that root writes into another user's folder can't be opened by that user any more.
void RefuseRootAmongOthersBooks(const QString& folder, uid_t owner)
{
    if (geteuid() != 0 || owner == 0)
        return;
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"हे हिशेब दुसऱ्या वापरकर्त्याच्या नावावर आहेत. sudo न लावता, त्याच वापरकर्त्याच्या नावाने सुरू करा.",
            QStringLiteral("The books in %1 belong to %2: start as that user, without sudo.")
                .arg(QDir(folder).absolutePath(), NameOf(owner))));
}

// A lock on an open file or folder. The system releases it when the process ends, in whatever way.
class DescriptorLock {
public:
    enum Outcome { Locked, HeldByAnother, Unlockable };

    DescriptorLock() = default;
    ~DescriptorLock() { Close(); }
    Q_DISABLE_COPY_MOVE(DescriptorLock)

    // Returns false, with the reason in errno, if it can't be opened. Programs started from this one don't
    // inherit the lock.
    bool Open(const QByteArray& path, int flags)
    {
        m_opened = open(path.constData(), flags | O_CLOEXEC, 0600);
        return m_opened >= 0;
    }

    Outcome Lock() const
    {
        if (flock(m_opened, LOCK_EX | LOCK_NB) == 0)
            return Locked;
        return errno == EWOULDBLOCK ? HeldByAnother : Unlockable;
    }

    struct stat Status() const
    {
        struct stat found { };
        fstat(m_opened, &found);
        return found;
    }

    void Close()
    {
        if (m_opened >= 0)
            close(m_opened);
        m_opened = -1;
    }

private:
    int m_opened = -1;
};

}

// Two locks. The one on the folder holds even if somebody removes or replaces the file in it, but some
// network disks can't lock folders. The one on the file also keeps out older versions of the program.
class SingleInstance::Private {
public:
    explicit Private(const QString& folder)
        : m_folder(folder)
        , m_path(LockIn(folder))
        , m_name(QFile::encodeName(m_path))
    {
        if (!m_folderLock.Open(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY))
            Refuse(m_folder, m_folder, errno);
        RefuseRootAmongOthersBooks(m_folder, m_folderLock.Status().st_uid);
        const DescriptorLock::Outcome outcome = m_folderLock.Lock();
        if (outcome == DescriptorLock::HeldByAnother)
            return;
        m_folderIsOurs = outcome == DescriptorLock::Locked;
        while (!TryFile()) { }
    }
    ~Private()
    {
        if (m_taken)
            unlink(m_name.constData());
    }
    Q_DISABLE_COPY_MOVE(Private)

    bool Taken() const { return m_taken; }

private:
    // Returns false if it should be tried again.
    bool TryFile()
    {
        if (!m_fileLock.Open(m_name, O_RDWR | O_CREAT)) {
            RemoveSomebodyElses(errno);
            return false;
        }
        switch (m_fileLock.Lock()) {
        case DescriptorLock::Unlockable:
            if (!m_folderIsOurs)
                Refuse(m_folder, m_path, errno);
            m_taken = true;
            return true;
        case DescriptorLock::HeldByAnother:
            m_folderLock.Close();
            return true;
        case DescriptorLock::Locked:
            break;
        }
        m_taken = IsStillThere();
        return m_taken;
    }

    // A start as root leaves a file that the clerk can't open. While we hold the folder's lock no other copy
    // runs, so it can be removed.
    void RemoveSomebodyElses(int why)
    {
        if (why != EACCES || !m_folderIsOurs || unlink(m_name.constData()) != 0)
            Refuse(m_folder, m_path, why);
    }

    // False if another copy ended and removed the file between our opening and locking it. A lock on the
    // removed file would keep nobody out.
    bool IsStillThere()
    {
        const struct stat held = m_fileLock.Status();
        struct stat named { };
        if (stat(m_name.constData(), &named) == 0 && held.st_ino == named.st_ino
            && held.st_dev == named.st_dev)
            return true;
        m_fileLock.Close();
        return false;
    }

    QString m_folder;
    QString m_path;
    QByteArray m_name;
    DescriptorLock m_folderLock;
    DescriptorLock m_fileLock;
    bool m_folderIsOurs = false;
    bool m_taken = false;
};

#endif

SingleInstance::SingleInstance(const QString& folder) : m_d(std::make_unique<Private>(folder)) { }

SingleInstance::~SingleInstance() = default;

bool SingleInstance::IsLeftBehind(const QString& folder)
{
    return QFile::exists(LockIn(folder));
}

bool SingleInstance::Taken() const
{
    return m_d->Taken();
}
