#pragma once

#include <QStringView>

// The direction of a balance as the clerk reads it, and as the books hold it.
namespace Direction {

inline constexpr QStringView Payable = u"doNao"; // to the member; "C" in the books
inline constexpr QStringView Due = u"yaoNao"; // from the member; "D" in the books

// The letter of a word; anything but Due is "C".
QStringView Letter(QStringView word);

// The word of a letter; empty for a text that is neither.
QStringView Word(QStringView letter);

}

// What a member's opening figures have come to, by the entries of the current company.
namespace MemberClosing {

// A balance without its sign, and the word that gives its direction.
struct Balance {
    double amount = 0;
    QStringView word;
};

// The opening balance moved on by milk, payments, advances and deposits. The sums and
// what they come to are single precision, so a large opening balance alone stays right to the paisa.
Balance BalanceOf(double memberNo, double opening, QStringView openingWord);

// The advance still with the member, in rupees; every kind of repayment counts.
double UchalOf(double memberNo, double opening);

// The deposit of one kind, "gaaya zova" or "mhOsa zova", in rupees.
double ThevOf(double memberNo, double opening, QStringView advanceType);

}
