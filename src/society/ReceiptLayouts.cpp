#include "society/ReceiptLayouts.h"

#include <array>

namespace {

constexpr std::array<ReceiptLayout, 8> Layouts = {{
    {u"Tašp 1", u"MilkReceipt1.rpt", u"MilkReceipt1.rpt"},
    {u"Tašp 2", u"MilkReceipt2.rpt", u"MilkReceipt2.rpt"},
    {u"Tašp 3", u"MilkReceiptBhl.rpt", u"MilkReceiptBhl.rpt"},
    {u"Tašp 4", u"MilkReceiptGhlp.rpt", u"MilkReceiptGhlp.rpt"},
    {u"Tašp 5", u"MilkReceiptAtk.rpt", u"MilkReceiptAtk.rpt"},
    {u"Tašp 6", u"MilkReceiptShenoli Epson LX 300.rpt", u"MilkReceiptShenoli.rpt"},
    {u"Tašp 7", u"MilkReceiptNerli With Time.rpt", u"MilkReceiptNerli With Time.rpt"},
    {u"Tašp 8", u"MilkReceiptNerli Minimised With Time XP.rpt", u"MilkReceiptNerli Minimised With Time.rpt"},
}};

}

ReceiptLayout ReceiptLayoutOf(QStringView type)
{
    for (const ReceiptLayout& layout : Layouts)
        if (layout.type == type)
            return layout;
    return {};
}
