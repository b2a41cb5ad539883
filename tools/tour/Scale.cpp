#include "platform/shell/AppFolder.h"
#include "platform/text/Shivaji01.h"
#include "tools/tour/Tour.h"

#ifdef Q_OS_UNIX
#include "tools/devices/DeviceSimulator.h"
#endif

#include <QFile>

namespace {

// From the list of reports to the settings, where the devices are switched on.
void SwitchTheDevicesOn(Tour& tour)
{
    tour.Step(QStringLiteral("settings-devices"), QStringLiteral("{F7}1") + Enter + QStringLiteral("1"));
    tour.Type(QStringLiteral("%s"));
    tour.CheckRows(QStringLiteral("settings of the devices"),
        QStringLiteral("select AutoLiters,AutoFat,WeighScale from AutoSettings"),
        {QStringLiteral("haoya|haoya|ELECTRO")});
    tour.Type(Escape);
}

void OpenTheCounterAgain(Tour& tour)
{
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}") + Enter + Enter + Enter + QStringLiteral("1") + Enter);
    tour.Check(
        QStringLiteral("the counter again"), tour.TheClerk().Focus(), QStringLiteral("txtCollectionNo"));
}

#ifdef Q_OS_UNIX

void WeighADelivery(Tour& tour)
{
    tour.Step(QStringLiteral("scale-has-filled"), Enter + QStringLiteral("11") + Enter);
    tour.CheckReads(QStringLiteral("txtLiters"), QStringLiteral("8.350"));
    tour.CheckReads(QStringLiteral("txtFat"), QStringLiteral("4.3"));
    tour.Type(Enter + Enter + Enter);
    tour.KeepReport(QStringLiteral("scale-receipt"), QStringLiteral("8.350"), 1);
    tour.Step(QStringLiteral("scale-delivery-saved"), {});
    tour.CheckRows(QStringLiteral("delivery from the scale"),
        QStringLiteral("select CollectionNo,MemberName,Animal,Liters,Fat,Rate,Amount from MilkCollections "
                       "where CollectionDate=#06/01/2026# and CollectionTime='sakaL' and MemberNo=11"),
        {u"11|" + Shivaji01::FromUnicode(u"मंगल दिनकर यादव") + u"|gaaya|8.35|4.3|35.45|296.01"});
}

#endif

}

void PlayScale(Tour& tour)
{
#ifdef Q_OS_UNIX
    const DevicePlay::Measure onTheScale{8.35, 4.3, {}};
    const auto play = DevicePlay::Of(QStringLiteral("ELECTRO"), onTheScale);
    DeviceSimulator simulator(*play, DeviceSimulator::Manner::Pieces, std::chrono::milliseconds(2));
    if (!simulator.Device().isEmpty()) {
        tour.Check(QStringLiteral("the scale's port"),
            QFile::link(simulator.Device(), LocalAppFile(u"COM1")) ? QStringLiteral("linked")
                                                                   : QStringLiteral("not linked"),
            QStringLiteral("linked"));
        SwitchTheDevicesOn(tour);
        OpenTheCounterAgain(tour);
        WeighADelivery(tour);
        const bool zeroed = simulator.WaitUntilReceived("tzTZ", std::chrono::seconds(10));
        tour.Check(QStringLiteral("the scale was set to zero"), QString::number(zeroed), QStringLiteral("1"));
        return;
    }
#endif
    tour.LeaveOut(QStringLiteral("a scale that fills a delivery: this system gives no pseudo-terminal"));
    OpenTheCounterAgain(tour);
}
