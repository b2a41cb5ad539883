#include "tests/platform/report/ReportTest.h"

#include <QFile>

namespace {

// What a report gives to a spreadsheet.
class RecordsTest : public ReportTest {
protected:
    void AddMembers()
    {
        AddDelivery(1, Morning, "अशोक", 1, 4, 30);
        AddDelivery(2, Morning, "बाबू", 2, 4, 60);
        AddDelivery(3, Morning, "कमल", 3, 4, 90);
        for (const char* pair : {"1,'A',5", "1,'B',6", "3,'C',7"})
            Run(QStringLiteral("insert into KapatDetails(MemberNo,Label1,Value1) values(%1)")
                    .arg(QString::fromLatin1(pair)));
    }

    // The lines of a saved table.
    QStringList Lines(const QString& elements)
    {
        const std::unique_ptr<Report> report = Make(Template(elements));
        const QString file = File("a.csv");
        EXPECT_TRUE(report->SaveCsv(file).Done());
        QFile source(file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        return QString::fromUtf8(source.readAll().mid(3)).split("\r\n", Qt::SkipEmptyParts);
    }

    static QString Linked()
    {
        return "<source name=\"k\" table=\"KapatDetails\" link=\"MemberNo\" to=\"c\" order=\"Label1\"/>";
    }
};

}

TEST_F(RecordsTest, ATextStandsThereAsOnPaper)
{
    Run("insert into MilkReceipt(CollectionNo,CollectionTime,ActualCollectionTime) "
        "values(1,'sakaaLa','6.45 AM')");
    const QStringList lines =
        Lines("<source name=\"r\" table=\"MilkReceipt\"/><each source=\"r\">"
              "<text if=\"plain(r.CollectionTime) &lt;&gt; ''\">{r.CollectionTime}</text>"
              "<text>{if(r.CollectionNo = 1, plain(r.ActualCollectionTime), '')}</text></each>");
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[1].contains("6.45 AM")) << lines[1].toStdString();
    EXPECT_FALSE(lines[1].contains("sakaaLa")) << lines[1].toStdString();
}

TEST_F(RecordsTest, APartForEachValueGivesThatValue)
{
    AddMembers();
    Run("update MilkCollectionsTemp set Fat=5 where CollectionNo=3");
    EXPECT_EQ(Lines("<each source=\"c\" by=\"Fat\"><text>{MemberName}</text><table source=\"c\">"
                    "<col head=\"लि.\">{Liters|0}</col></table></each>"),
        QStringList({"Fat,लि.", "4,1", "4,2", "5,3"}));
}

TEST_F(RecordsTest, AFigureIsNotGrouped)
{
    AddDelivery(1, Morning, "अशोक", 1, 4, 123456);
    EXPECT_EQ(Lines("<table source=\"c\"><col w=\"40\" head=\"रु.\">रु. {Amount|#,##,##0.00}</col>"
                    "</table>"),
        QStringList({"रु.", "रु. 123456.00"}));
}

TEST_F(RecordsTest, ARowThatPrintsNothingIsThere)
{
    AddMembers();
    for (const char* attributes : {"", "keep=\"1\"", "newpage=\"1\""})
        EXPECT_EQ(Lines(QStringLiteral("<each source=\"c\" %1><text>{if(MemberNo = 2, '', MemberName)}</text>"
                                       "</each>")
                            .arg(QLatin1String(attributes))),
            QStringList({"MemberNo,MemberName", "1,अशोक", "2,बाबू", "3,कमल"}))
            << attributes;
}

TEST_F(RecordsTest, ARowThatPrintsNothingTakesNoPage)
{
    AddMembers();
    const std::unique_ptr<Report> report =
        Make(Template("<each source=\"c\" newpage=\"1\">"
                      "<text>{if(MemberNo &lt;&gt; 2, MemberName, '')}</text></each>"));
    report->Complete();
    EXPECT_EQ(report->PageCount(), 2U);
}

TEST_F(RecordsTest, ARowWithoutRowsInsideStandsByItself)
{
    AddMembers();
    const QStringList names{
        "MemberNo,MemberName,MemberNo,Label1", "1,अशोक,1,A", "1,अशोक,1,B", "2,बाबू,,", "3,कमल,3,C"};
    EXPECT_EQ(Lines(Linked()
                  + "<each source=\"c\"><text>{MemberName}</text><each source=\"k\">"
                    "<text>{k.Label1|plain}</text></each></each>"),
        names);
    const QString chosen = "<each source=\"c\"><text>{MemberName}</text>"
                           "<each source=\"k\" only=\"plain(k.Label1) &lt;&gt; 'C'\">"
                           "<text>{k.Label1|plain}</text></each></each>";
    EXPECT_EQ(Lines(Linked() + chosen).last(), "3,कमल,,");
    EXPECT_EQ(Lines(Linked()
                  + "<each source=\"c\"><columns><column><text>{MemberName}</text></column>"
                    "<column><table source=\"k\"><col head=\"a\">{Label1|plain}</col>"
                    "<col head=\"b\">{Value1|0.0}</col></table></column></columns></each>"),
        QStringList({"MemberNo,MemberName,a,b", "1,अशोक,A,5.0", "1,अशोक,B,6.0", "2,बाबू,,", "3,कमल,C,7.0"}));
}

TEST_F(RecordsTest, AReportWithoutRowsGivesItsHeads)
{
    EXPECT_EQ(Lines("<text>{MemberName}</text>"), QStringList({"MemberName"}));
}
