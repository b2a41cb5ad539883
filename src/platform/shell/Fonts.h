#pragma once

#include <QString>
#include <QStringList>

// The family of the Devanagari font that the screens use; empty if no font on this machine can show
// Devanagari.
QString DevanagariFontFamily();

// Chooses among families that can show Devanagari: one of the two that the screens were designed with, else
// the first of the list. Empty if the list is empty.
QString ChooseDevanagariFamily(const QStringList& families);
