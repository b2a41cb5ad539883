#pragma once

#include <QStringView>

// The direction of a balance: a word for the clerk, a letter in the books.
namespace Direction {

inline constexpr QStringView Payable = u"doNao"; // to the member; "C" in the books
inline constexpr QStringView Due = u"yaoNao"; // from the member; "D" in the books

// The letter of a word; anything but Due is "C".
QStringView Letter(QStringView word);

// The word of a letter; empty for a text that is neither.
QStringView Word(QStringView letter);

}

// What a member's figures are now: the opening ones and the entries of the selected company since.
namespace MemberClosing {

// A balance: its absolute value, and the word for its direction.
struct Balance {
    double amount = 0;
    QStringView word;
};

// The opening balance plus milk, payments, advances and deposits. The movement is single precision, the
// opening balance isn't: alone it stays right to the paisa, however large.
Balance BalanceOf(double memberNo, double opening, QStringView openingWord);

// The advance that the member still has, in rupees. Every kind of repayment counts.
double UchalOf(double memberNo, double opening);

// The deposit of one kind, Word::CowThev or Word::BuffThev, in rupees; so is the opening one.
double ThevOf(double memberNo, double opening, QStringView advanceType);

}
