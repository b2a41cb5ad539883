#include "tests/platform/template/TemplateTest.h"

#include "delivered/Delivered.h"
#include "platform/template/TemplateCheck.h"

#include <QFile>

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << texts.join(u'\n').toStdString();
}

TemplateTest::TemplateTest()
{
    connection->Create(File("books.mdb"), "secret");
    connection->RunScript(Delivered::Schema());
}

QStringList TemplateTest::Faults(const QString& text, const QString& name)
{
    return FaultsOfFile(Write(name + ".rpt", text));
}

QStringList TemplateTest::FaultsOfFile(const QString& file)
{
    QStringList lines;
    for (const TemplateFault& fault : CheckFile(file))
        lines.append(QString::number(fault.line) + ": " + fault.text);
    return lines;
}

TemplateFaults TemplateTest::CheckFile(const QString& file)
{
    TemplateFaults faults;
    ReportTemplate report = ReportTemplate::Read(file, faults);
    const TemplateFaults more = Check(report, *connection);
    faults.insert(faults.end(), more.begin(), more.end());
    SortAndCut(faults);
    return faults;
}

QString TemplateTest::OnlyFault(const QString& elements)
{
    const QStringList faults = Faults(Template(elements));
    EXPECT_EQ(faults.size(), 1) << faults.join(u'\n').toStdString();
    return faults.value(0).section(": ", 1);
}

QString TemplateTest::Write(const QString& name, const QString& text) const
{
    QFile target(File(name));
    EXPECT_TRUE(target.open(QIODevice::WriteOnly));
    target.write(text.toUtf8());
    return target.fileName();
}

QString Template(const QString& elements, const QString& attributes)
{
    return "<report name=\"Test\" " + attributes
        + ">\n<source name=\"c\" table=\"MilkCollectionsTemp\" order=\"CollectionNo\"/>\n" + elements
        + "\n</report>";
}
