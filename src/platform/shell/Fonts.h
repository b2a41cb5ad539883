#pragma once

#include <QString>
#include <QStringList>

// The Devanagari font of the machine that the screens use: the family's name, or an empty text if no
// font on this machine can show Devanagari.
QString DevanagariFontFamily();

// The one to use among the families that can show Devanagari: the two that the screens were drawn with, in
// that order, else the first that there is, else an empty text.
QString ChooseDevanagariFamily(const QStringList& families);
