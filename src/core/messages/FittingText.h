#pragma once

#include <QString>

class QFontMetrics;
class QSize;

// The text with invisible places to break at inside long words, such as paths: by itself a label breaks lines
// at blanks only.
QString BreakableText(QStringView text);

// As much of a text as fits into a space when wrapped, with a mark where the end is left out.
QString FittingText(const QString& text, const QFontMetrics& metrics, QSize space);
