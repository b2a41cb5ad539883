#pragma once

#include "platform/shell/World.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The society for all cases: 500 members who came to both shifts of every day of 2026-2027, with vouchers and
// payments (see FillPayments) and with sales (see FillSales). Its settings make a save do as much as
// possible: it looks for a second can and adds the amount to the member's balance. A new rate chart begins
// every month.
class BenchSociety {
public:
    // Makes it beside the program, so on the same disk as the build; the destructor removes it. With more
    // years, the same went on through all the years before.
    explicit BenchSociety(int years = 1);

    // The folder of its drives.
    QString Drives() const { return m_drives.path(); }

private:
    QTemporaryDir m_drives;
};

inline constexpr int SocietyMembers = 500;
inline const QDate YearBegins(2026, 4, 1);

// The same society after ten years, with ten times the rows; made by the first call.
const BenchSociety& TenYears();

// Days after that year, still without deliveries: one for the saves, one for the played day, and one for the
// shift with slips.
inline const QDate SavingDay(2027, 4, 1);
inline const QDate PlayedDay(2027, 4, 2);
inline const QDate SlipsDay(2027, 4, 3);

// Opens the society's database in this process; the destructor closes it.
class BooksOfSociety {
public:
    explicit BooksOfSociety(const QString& drives);
    ~BooksOfSociety();
    BooksOfSociety(const BooksOfSociety&) = delete;
    BooksOfSociety& operator=(const BooksOfSociety&) = delete;
};

// Collects the texts of plain boxes, since nobody is there to close them.
class SilentBox final : public MessageBox {
public:
    QStringList Shown;
    void Show(const QString& text, const QString&) override { Shown.append(text); }
};
