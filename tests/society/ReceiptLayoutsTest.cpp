#include "society/ReceiptLayouts.h"

#include <gtest/gtest.h>

TEST(ReceiptLayoutsTest, EachTypeHasItsTemplateAtTheCounters)
{
    const std::pair<QStringView, QStringView> types[] = {{u"Tašp 1", u"MilkReceipt1.rpt"},
        {u"Tašp 2", u"MilkReceipt2.rpt"}, {u"Tašp 3", u"MilkReceiptBhl.rpt"},
        {u"Tašp 4", u"MilkReceiptGhlp.rpt"}, {u"Tašp 5", u"MilkReceiptAtk.rpt"},
        {u"Tašp 6", u"MilkReceiptShenoli Epson LX 300.rpt"}, {u"Tašp 7", u"MilkReceiptNerli With Time.rpt"},
        {u"Tašp 8", u"MilkReceiptNerli Minimised With Time XP.rpt"}};
    for (const auto& [type, name] : types)
        EXPECT_EQ(ReceiptLayoutOf(type).counterTemplate, name);
}

TEST(ReceiptLayoutsTest, TheSamplesOfTheSixthAndTheEighthAreFilesOfTheirOwn)
{
    EXPECT_EQ(ReceiptLayoutOf(u"Tašp 6").sampleTemplate, u"MilkReceiptShenoli.rpt");
    EXPECT_EQ(ReceiptLayoutOf(u"Tašp 8").sampleTemplate, u"MilkReceiptNerli Minimised With Time.rpt");
    for (const QStringView type : {u"Tašp 1", u"Tašp 2", u"Tašp 3", u"Tašp 4", u"Tašp 5", u"Tašp 7"})
        EXPECT_EQ(ReceiptLayoutOf(type).sampleTemplate, ReceiptLayoutOf(type).counterTemplate);
}

TEST(ReceiptLayoutsTest, AnUnknownTypeHasNone)
{
    EXPECT_TRUE(ReceiptLayoutOf(u"Tašp 9").type.isEmpty());
    EXPECT_TRUE(ReceiptLayoutOf(u"").counterTemplate.isEmpty());
}

TEST(ReceiptLayoutsTest, TheSettingsOfferTheEightInTheirOrder)
{
    EXPECT_EQ(ReceiptTypes().join(u','), "Tašp 1,Tašp 2,Tašp 3,Tašp 4,Tašp 5,Tašp 6,Tašp 7,Tašp 8");
}

TEST(ReceiptLayoutsTest, ASlipIsPrintedAgainFromTheFolderOfItsTemplateOrNotAtAll)
{
    using Reprint = ReceiptLayout::Reprint;
    for (const QStringView type : {u"Tašp 1", u"Tašp 2", u"Tašp 3", u"Tašp 4", u"Tašp 6"})
        EXPECT_EQ(ReceiptLayoutOf(type).reprint, Reprint::InAppFolder);
    EXPECT_EQ(ReceiptLayoutOf(u"Tašp 5").reprint, Reprint::InSiblingFolder);
    for (const QStringView type : {u"Tašp 7", u"Tašp 8", u"Tašp 9"})
        EXPECT_EQ(ReceiptLayoutOf(type).reprint, Reprint::None);
}
