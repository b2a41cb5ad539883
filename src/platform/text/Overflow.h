#pragma once

#include <QStringView>

// Throws an overflow error that names the number; a long one is cut short.
[[noreturn]] void ThrowOverflow(QStringView number);
