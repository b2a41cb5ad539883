#pragma once

#include <QString>

// An amount of rupees in Marathi words, as a voucher states it. The words are those of the table rswords, in
// the system's encoding; a number without a row there adds nothing.

// The whole of it: rupees and, if there are any, paise. `amount` is the text of a field, such as "1250.50".
QString AmountInWords(const QString& amount);

// The words of the whole rupees, without the word for rupees itself; empty if there is no amount, or one of
// more than seven digits.
QString RupeeWords(const QString& amount);

// The words of the paise; empty if there are none.
QString PaiseWords(const QString& amount);
