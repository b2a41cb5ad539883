#include "society/ReceiptLayouts.h"

#include <array>

namespace {

using Reprint = ReceiptLayout::Reprint;

constexpr std::array<ReceiptLayout, 8> Layouts = {{
    {u"Tašp 1", u"MilkReceipt1.rpt", u"MilkReceipt1.rpt", Reprint::InAppFolder},
    {u"Tašp 2", u"MilkReceipt2.rpt", u"MilkReceipt2.rpt", Reprint::InAppFolder},
    {u"Tašp 3", u"MilkReceiptBhl.rpt", u"MilkReceiptBhl.rpt", Reprint::InAppFolder},
    {u"Tašp 4", u"MilkReceiptGhlp.rpt", u"MilkReceiptGhlp.rpt", Reprint::InAppFolder},
    {u"Tašp 5", u"MilkReceiptAtk.rpt", u"MilkReceiptAtk.rpt", Reprint::InSiblingFolder},
    {u"Tašp 6", u"MilkReceiptShenoli Epson LX 300.rpt", u"MilkReceiptShenoli.rpt", Reprint::InAppFolder},
    {u"Tašp 7", u"MilkReceiptNerli With Time.rpt", u"MilkReceiptNerli With Time.rpt", Reprint::None},
    {u"Tašp 8", u"MilkReceiptNerli Minimised With Time XP.rpt", u"MilkReceiptNerli Minimised With Time.rpt",
        Reprint::None},
}};

}

QStringList ReceiptTypes()
{
    QStringList types;
    for (const ReceiptLayout& layout : Layouts)
        types.append(layout.type.toString());
    return types;
}

ReceiptLayout ReceiptLayoutOf(QStringView type)
{
    for (const ReceiptLayout& layout : Layouts)
        if (layout.type == type)
            return layout;
    return {};
}
