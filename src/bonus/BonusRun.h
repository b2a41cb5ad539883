#pragma once

#include <QDate>
#include <QString>

#include <functional>

// What a bonus is worked out for. Two runs of equal parameters come to the same.
struct BonusParameters {
    QDate from;
    QDate to;
    double fromAcNo = 0;
    double toAcNo = 0;
    QString milkType; // "gaaya", "mhOsa" or "daonhI"; kept with the rows of a run by member, and no more
    double cowRate = 0; // rupees a litre
    double buffRate = 0;
    bool withAdvances = false;

    bool operator==(const BonusParameters& other) const = default;
};

// The bonus of one member, in litres and rupees of single precision.
struct MemberBonus {
    double memberNo = 0;
    QString memberName;
    float cowLiters = 0;
    float buffLiters = 0;
    float cowBonus = 0;
    float buffBonus = 0;
    float advance = 0; // given less received; may be below 0

    float Total() const { return cowBonus + buffBonus; }
};

// Fills BonusPayments in place of what it held, in a transaction of its own: whole or not at all.
namespace BonusRun {

// A row for each member of the range, also without milk, in the order of their numbers. `done` is called
// behind each.
void ByMember(const BonusParameters& parameters, const std::function<void(const MemberBonus&)>& done);

// The form by account: a row for each account and animal, with the totals of the range on all of them. The
// type of milk counts here.
void ByAccount(const BonusParameters& parameters);

// Empties it.
void Forget();

// Takes out of it what no run has numbered, in a transaction of its own.
void Tidy();

}
