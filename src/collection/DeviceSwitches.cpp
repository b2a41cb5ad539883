#include "collection/DeviceSwitches.h"

#include "collection/MilkDevices.h"
#include "core/state/AppState.h"
#include "platform/forms/Pieces.h"

#include <QHBoxLayout>

#include <functional>
#include <utility>

using namespace Pieces;

namespace {

// The devices of a counter, as their switches are marked.
constexpr QStringView ScaleName = u"वजन काटा";
constexpr QStringView TesterName = u"फॅट मशीन";

// A device's name stands beside its switch; to a screen reader both are one.
void ShowSwitch(Button& button, QStringView device, const QString& setting)
{
    button.SetCaption(Shivaji(DeviceSwitch::Caption(setting)));
    const QString name = device + u' ' + button.Shown().Seen();
    button.SetAccessibleName(Plain(name));
}

QLayout* Line(QStringView device, Button& button)
{
    auto* row = new QHBoxLayout;
    row->addWidget(Heading(Plain(device)), 1);
    row->addWidget(Sized(button, 90, 32, Look::Size::Normal));
    return row;
}

}

DeviceSwitches::DeviceSwitches(Screen* screen)
    : cmdAutoLiter(screen, "cmdAutoLiter", {}, {this, &DeviceSwitches::cmdAutoLiter_Click})
    , cmdAutoFat(screen, "cmdAutoFat", {}, {this, &DeviceSwitches::cmdAutoFat_Click})
{
    for (Button* device : {&cmdAutoLiter, &cmdAutoFat})
        device->LostFocus = std::bind_front(&DeviceSwitches::Switch_LostFocus, this);
}

void DeviceSwitches::Show()
{
    ShowSwitch(cmdAutoLiter, ScaleName, gAppState.gAutoLiters);
    ShowSwitch(cmdAutoFat, TesterName, gAppState.gAutoFat);
}

void DeviceSwitches::cmdAutoLiter_Click()
{
    gAppState.gAutoLiters = DeviceSwitch::SettingAfterClick(cmdAutoLiter.Text());
    Show();
}

void DeviceSwitches::cmdAutoFat_Click()
{
    gAppState.gAutoFat = DeviceSwitch::SettingAfterClick(cmdAutoFat.Text());
    Show();
}

void DeviceSwitches::Switch_LostFocus()
{
    if (Field* waiting = std::exchange(m_waiting, nullptr))
        waiting->SetFocus();
}

bool DeviceSwitches::IsLeftForScale(Field& field, const Control* goingTo)
{
    return IsLeftFor(cmdAutoLiter, gAppState.gAutoLiters, field, goingTo);
}

bool DeviceSwitches::IsLeftForTester(Field& field, const Control* goingTo)
{
    return IsLeftFor(cmdAutoFat, gAppState.gAutoFat, field, goingTo);
}

bool DeviceSwitches::IsLeftFor(
    const Button& device, QStringView setting, Field& field, const Control* goingTo)
{
    const bool isLeft = goingTo == &device && DeviceSwitch::IsOn(setting);
    if (isLeft)
        m_waiting = &field;
    return isLeft;
}

QLayout* DeviceSwitches::ScaleLine()
{
    return Line(ScaleName, cmdAutoLiter);
}

QLayout* DeviceSwitches::TesterLine()
{
    return Line(TesterName, cmdAutoFat);
}
