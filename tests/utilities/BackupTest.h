#pragma once

#include "platform/database/Disk.h"
#include "platform/shell/AppFolder.h"
#include "tests/support/SocietyTest.h"
#include "utilities/frmBackup.h"

#include <QEvent>
#include <QLabel>
#include <QMap>

#include <functional>
#include <utility>

// The drives of this machine, but of the kinds that a test says; any other is a fixed disk.
class KnownDrives final : public FileSystem {
public:
    explicit KnownDrives(FileSystem& real) : m_real(real) { }

    QMap<QString, DriveKind> Kinds; // by the roots

    bool CreateFolder(const QString& path) override { return m_real.CreateFolder(path); }
    bool HasFolder(const QString& path) const override { return m_real.HasFolder(path); }
    QStringList Folders(const QString& path) const override { return m_real.Folders(path); }
    QStringList Files(const QString& path, const QString& pattern) const override
    {
        return m_real.Files(path, pattern);
    }
    QStringList Drives() const override { return m_real.Drives(); }
    DriveKind KindOfDrive(const QString& path) const override
    {
        return Kinds.value(path.left(3), DriveKind::Fixed);
    }

private:
    FileSystem& m_real;
};

// Writes down the sentences that the screen is painted with.
class PaintedSentences final : public QObject {
public:
    explicit PaintedSentences(const Screen& screen)
        : m_line(screen.findChild<QLabel*>(QStringLiteral("lblContent")))
    {
        m_line->installEventFilter(this);
    }

    QStringList Seen; // each once, while it stands

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && Seen.value(Seen.size() - 1) != m_line->text())
            Seen.append(m_line->text());
        return false;
    }

private:
    QLabel* m_line;
};

// A disk that looks at the screen while it is written to.
class LookingDisk final : public Disk {
public:
    explicit LookingDisk(std::function<void()> look) : m_look(std::move(look)) { Use(this); }
    ~LookingDisk() override { Use(nullptr); }

    std::error_code Sync(const QString& path) override
    {
        m_look();
        return Disk::Sync(path);
    }

private:
    std::function<void()> m_look;
};

// A clerk at the backup screen of the delivered society, with one member, and drives C: and D:.
class BackupTest : public SocietyTest {
protected:
    BackupTest();

    // Opens the screen and plays on it; no run-time error is expected.
    void OnBackup(const std::function<void(Clerk&)>& script);

    // Presses cmdBackup after choosing history; presses it.
    static void BackUpAsHistory(Clerk& clerk);
    static void BackUp(Clerk& clerk) { Press(clerk, "cmdBackup"); }

    // Opens a drive, or a folder that is in the open one, by the lists.
    static void OpenDrive(Clerk& clerk, const char* root);
    static void OpenFolder(Clerk& clerk, const char* name);

    // What Text1 reads.
    static std::string Name(Clerk& clerk) { return Reads(clerk, "Text1"); }
    static void SetName(Clerk& clerk, const QString& name);

    // What is painted in the line of the screen while a button is pressed.
    static QStringList Painted(Clerk& clerk, const char* button);

    // Presses a button and looks at the screen whenever something is made durable meanwhile: the animation
    // and the bar are there then, and neither before nor behind it. Returns how often it looked.
    static int LooksAtTheCopying(Clerk& clerk, const char* button);

    // Files and folders by their paths on the society's machine.
    static bool IsThere(const char* path);
    static QByteArray Bytes(const char* path);
    static void Put(const char* path, const QByteArray& bytes);
    static void MakeFolder(const char* path);
    static QStringList FilesIn(const char* folder);

    // The open or closed books' rows.
    int Members();

    KnownDrives Drives{*World::Current().fileSystem};

    static constexpr const char* Folder = "C:\\Tarvel01\\Vetrolan\\Backup";
    static constexpr const char* Books = "C:\\Tarvel01\\Vetrolan\\Morvelta.mdb";
    static constexpr const char* PlainCopy = "C:\\Tarvel01\\Vetrolan\\Backup\\Morvelta.mdb";
    static constexpr const char* DatedCopy = "C:\\Tarvel01\\Vetrolan\\Backup\\Morvelta On 15 April 2026.mdb";
    static constexpr const char* YearCopy = "C:\\Tarvel01\\Vetrolan\\Backup\\Y2026-2027C1.mdb";
};
