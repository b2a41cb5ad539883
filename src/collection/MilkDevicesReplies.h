#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

// What the answers of the devices say. A reply is read as Latin-1, so that noise is never a digit. Nothing
// is returned where the reply holds no number: the field then stays as it was.
namespace MilkDevicesReplies {

// The number that the whole text is: blanks around, one sign, digits with at most one decimal point.
std::optional<double> NumberOf(QStringView text);

// The piece of so many characters from `start` (from 1) on, as the text of its absolute value.
std::optional<QString> ScaleValue(const QByteArray& reply, int start, int length);

// Whether a reply that begins with the mark holds its number to the end: behind a digit of it stands a line
// end or the next mark. A device that sends neither has to fall silent.
bool HoldsFrame(const QByteArray& reply, char mark);

// The number behind the first character. Behind a mark it ends where HoldsFrame tells, and a unit may follow
// it, as in "+12.5kg"; a reply without a mark has to be a number to its end.
std::optional<double> FrameValue(const QByteArray& reply, char mark);

// The litres of the "+" frame: one decimal, four characters.
QString LitersOfFrame(double number);

// The fat of the "%" frame, in hundredths: cut to three characters, from 9.9 on to four, then one decimal
// in four characters. Whether it has come to 9.9 is told by the fat with its one decimal, so 9.85 has.
QString FatOfFrame(double number);

// The litres and the fat of a combined reading of nine digits: six for the litres in thousandths, three for
// the fat in tenths. Nothing for a number that is no such reading.
std::optional<QString> LitersOfReading(std::int32_t reading, QStringView format);
std::optional<QString> FatOfReading(std::int32_t reading);

}
