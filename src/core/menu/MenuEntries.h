#pragma once

#include "platform/forms/Caption.h"

#include <vector>

// One entry of a menu list. It is recognised by its text; the rest says what it opens.
struct MenuEntry {
    QStringView text; // as the system spells it
    QString screen; // empty: the entry has no action
    QString reportMode; // goes into gReportMode before the screen opens; empty leaves it
    QStringView title = {}; // replaces the screen's own title
    bool asksCaller = false; // the screen asks who opened it
};

namespace MenuEntries {

// The text of the entries that go back, or out of the program.
inline constexpr QStringView Back = u"baahor";

// The lists in the order that the menu shows them; the transactions with or without the charges of transport.
const std::vector<MenuEntry>& Master();
std::vector<MenuEntry> SVouchers(bool withTransport);
const std::vector<MenuEntry>& MReports();
const std::vector<MenuEntry>& YearlyReport();
const std::vector<MenuEntry>& Utilities();

// The entry with this text in any of the sub-lists; null if there is none.
const MenuEntry* Find(const QString& text);

// The texts of a list, as captions.
std::vector<Caption> Captions(const std::vector<MenuEntry>& entries);

}
