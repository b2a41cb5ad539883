#include "SingleInstance.h"

#include "RunTimeError.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

[[noreturn]] void Refuse(const QString& path, const QString& why)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(
            u"हिशेबाच्या फोल्डरमध्ये लिहिता येत नाही.", QStringLiteral("%1 cannot be locked: %2").arg(path, why)));
}

}

#ifdef Q_OS_WIN

// A file opened with no sharing is the lock; the system closes and removes it however the process ends.
class SingleInstance::Private {
public:
    explicit Private(const QString& path)
        : m_file(CreateFileW(reinterpret_cast<LPCWSTR>(path.utf16()), GENERIC_READ | GENERIC_WRITE, 0,
            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr))
    {
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
    HANDLE m_file;
};

#else

class SingleInstance::Private {
public:
    explicit Private(const QString& path) : m_path(QFile::encodeName(path))
    {
        while (!Try(path)) { }
    }
    ~Private()
    {
        if (!Taken())
            return;
        unlink(m_path.constData());
        close(m_file);
    }
    Q_DISABLE_COPY_MOVE(Private)

    bool Taken() const { return m_file >= 0; }

private:
    // Returns false if the file went away between its opening and its locking: the copy that held it has
    // ended in between, and a lock on the removed file would keep nobody out.
    bool Try(const QString& path)
    {
        m_file = open(m_path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (m_file < 0)
            Refuse(path, qt_error_string(errno));
        if (flock(m_file, LOCK_EX | LOCK_NB) != 0) {
            const int why = errno;
            Close();
            if (why != EWOULDBLOCK)
                Refuse(path, qt_error_string(why));
            return true;
        }
        if (IsStillThere())
            return true;
        Close();
        return false;
    }

    bool IsStillThere() const
    {
        struct stat held { };
        struct stat named { };
        return fstat(m_file, &held) == 0 && stat(m_path.constData(), &named) == 0
            && held.st_ino == named.st_ino && held.st_dev == named.st_dev;
    }

    void Close()
    {
        close(m_file);
        m_file = -1;
    }

    QByteArray m_path;
    int m_file = -1;
};

#endif

SingleInstance::SingleInstance(const QString& folder)
    : m_d(std::make_unique<Private>(QDir(folder).filePath(QStringLiteral("Vetrolan.lock"))))
{
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::Taken() const
{
    return m_d->Taken();
}
