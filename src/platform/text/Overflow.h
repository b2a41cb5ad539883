#pragma once

#include <QStringView>

// The overflow error of a number that has no place where it is to go. `number` is named in the error, in part
// if it is long.
[[noreturn]] void ThrowOverflow(QStringView number);
