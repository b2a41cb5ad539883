#pragma once

#include "platform/shell/World.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The society that every case is measured on: 500 members who have come to both shifts of every day of
// 2026-2027. Its settings are those that make a save do all that it can: a second can is looked for, and
// the amount goes on the member's balance. A new chart begins every month.
class BenchSociety {
public:
    // Makes it beside the program, on the disk that the build lies on, and takes it away in the end.
    BenchSociety();

    // Where its drives lie.
    QString Drives() const { return m_drives.path(); }

private:
    QTemporaryDir m_drives;
};

inline constexpr int SocietyMembers = 500;

// The days after the year, which have no delivery yet: one for the saves, one for the day that is played, one
// for the shift with slips.
inline const QDate SavingDay(2027, 4, 1);
inline const QDate PlayedDay(2027, 4, 2);
inline const QDate SlipsDay(2027, 4, 3);

// The books of the society open in this process, as long as this lives.
class OpenBooks {
public:
    explicit OpenBooks(const QString& drives);
    ~OpenBooks();
    OpenBooks(const OpenBooks&) = delete;
    OpenBooks& operator=(const OpenBooks&) = delete;
};

// Keeps the texts of the plain boxes; nobody is there to close one.
class SilentBox final : public MessageBox {
public:
    QStringList Shown;
    void Show(const QString& text, const QString&) override { Shown.append(text); }
};
