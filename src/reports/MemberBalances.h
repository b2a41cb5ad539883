#pragma once

#include <QDate>

class StagingProgress;

// Stages what members owe and what they have deposited: the balances of a range of members, and the advance
// statement of one.
namespace MemberBalances {

struct Wanted {
    QDate from, to;
    double fromNo = 0;
    double toNo = 0;
};

// The advance statement of the member `fromNo`: the opening balance, and what was given and taken back.
void StageStatement(const Wanted& wanted);

// The advances that are open at the end of `to`. Without members in the range the register is emptied, and it
// returns false.
bool StageAdvances(const Wanted& wanted, StagingProgress& progress);

// The same for the deposits of the payments made from `from` to `to`.
bool StageDeposits(const Wanted& wanted, StagingProgress& progress);

}
