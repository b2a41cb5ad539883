#include "tests/journeys/DemoSocietyTest.h"

#include "core/start/MdlAccounts.h"
#include "platform/shell/AppFolder.h"
#include "tools/setup/Society.h"

#include <QDir>
#include <QRegularExpression>

DemoSocietyTest::DemoSocietyTest()
{
    gCn.Close();
    const QString folder = LocalPath(Paths::AppFolder);
    QDir(folder).removeRecursively();
    SocietyPlan plan;
    plan.name = "श्री गणेश दूध संस्था";
    plan.year = "2026-2027";
    plan.password = "Doodh#26";
    plan.demo = true;
    CopySociety(folder, plan);
    LoadAppState();
}

QString DemoSocietyTest::KeysOf(const QString& stored)
{
    return QString(stored).replace(QRegularExpression("([+^%{}])"), "{\\1}");
}
