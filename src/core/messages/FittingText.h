#pragma once

#include <QString>

class QFontMetrics;
class QSize;

// A text with places to break at in what is longer than a word, such as a path: a label breaks lines at
// blanks only.
QString BreakableText(QStringView text);

// As much of a text as fits into a space when its lines are wrapped, with a mark where the end is left out.
QString FittingText(const QString& text, const QFontMetrics& metrics, QSize space);
