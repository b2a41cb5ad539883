// The milk of the line: animal, litres, fat, rate and amount.

#include "collection/CounterScreen.h"
#include "collection/Counter.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/ModalStack.h"
#include "rates/LookupFatRate.h"
#include "society/Queries.h"
#include "society/Wanted.h"
#include "society/Words.h"

#include <utility>

using namespace Counter;

void CounterScreen::txtAnimal_GotFocus()
{
    if (ComboMemberName.IsEmpty())
        ComboMemberName.SetEnabled(true);
    if (txtMemberNo.Value() == 0)
        SendBack(txtMemberNo, Plain(u"मेम्बर नंबर टाका    Enter : नावाने"));
}

void CounterScreen::txtAnimal_LostFocus()
{
    if (IsSentBack())
        return;
    if (txtAnimal.IsEmpty())
        txtAnimal.SetFocus(Wanted::Animal());
}

// Litres, fat, rate

// With a scale the can's weight is the litres, and the clerk goes on without a key.
void CounterScreen::txtLiters_GotFocus()
{
    if (ComboMemberName.IsEmpty() || !DeviceSwitch::IsOn(gAppState.gAutoLiters))
        return;
    if (const std::optional<QString> liters = m_devices.ReadLiters(m_kind.liters.combinedDevice))
        txtLiters.SetText(*liters);
    if (txtLiters.IsEmpty())
        txtLiters.SetText(QStringLiteral("0"));
    txtLiters.SelectAll();
    if (txtLiters.Value() > 0)
        SendKeys(QStringLiteral("{TAB}"));
}

void CounterScreen::txtLiters_LostFocus()
{
    if (ComboMemberName.IsEmpty()) {
        ComboMemberName.SetFocus(Wanted::Name());
        return;
    }
    if (!IsAnimal(txtAnimal.Text()))
        return;
    if (txtLiters.Reformat() == 0 && !Devices.IsLeftForScale(txtLiters, GoingTo()))
        txtLiters.SetFocus(Plain(u"लिटर टाका    Esc : बाहेर"));
}

void CounterScreen::txtFat_GotFocus()
{
    const bool refused = std::exchange(FatRefused, false);
    if (Setting(u"AutoFat") == Word::No && !IsExistingRow && !refused)
        OfferLastFat();
    if (DeviceSwitch::IsOn(gAppState.gAutoFat))
        ReadFat();
    if (txtFat.IsEmpty())
        txtFat.SetText(QStringLiteral("0"));
    txtFat.SelectAll();
}

// Without a fat tester the member's last fat of the same animal and half of the day is the likely one.
void CounterScreen::OfferLastFat()
{
    const Recordset last(gCn,
        Sql(u"select * from MilkCollections where CollectionDate<=", TheShift().Day(),
            u" and CollectionTime=", Quoted(txtTime.Text()), u" and Animal=", Quoted(txtAnimal.Text()),
            u" and MemberNo=", txtMemberNo.Value(), u" and MemberName=", Quoted(ComboMemberName.Text()),
            u" order by CollectionDate desc,CollectionNo desc"));
    if (!last.Eof())
        txtFat.Show(last[u"Fat"].Number());
}

// Some testers give the litres a second time, and one gives nothing else.
void CounterScreen::ReadFat()
{
    const MilkDevices::Fields read = m_devices.ReadFat();
    if (read.liters)
        txtLiters.SetText(*read.liters);
    if (read.fat)
        txtFat.SetText(*read.fat);
}

// With a fat tester the field isn't left until there is a fat, or the tester is switched off. What the common
// exchange finds may be another device's figure; the field's own reading follows with the focus that comes
// back.
void CounterScreen::txtFat_LostFocus()
{
    if (DeviceSwitch::IsOn(gAppState.gAutoFat) && txtFat.Value() <= 0) {
        if (Devices.IsLeftForTester(txtFat, GoingTo()))
            return;
        if (const std::optional<QString> read = m_devices.RepeatFat())
            txtFat.SetText(*read);
        FatRefused = true;
        txtFat.SetFocus(Plain(u"फॅट टाका    Enter : मशीनवरून पुन्हा    Esc : बाहेर"));
        return;
    }
    const double fat = txtFat.Reformat();
    if (fat == 0 || fat > HighestFat) {
        FatRefused = true; // the clerk is to see what was refused, not another offer
        txtFat.SetFocus(Plain(u"फॅट टाका : 0.1 ते 30.0    Esc : बाहेर"));
        return;
    }
    const FatRate found = LookupFatRate(maskDate.Date(), txtFat.Value(), txtAnimal.Text());
    if (found.outcome == FatRate::Outcome::NoChart) {
        ClearEntryFields();
        maskDate.SetFocus();
        SendKeys(QStringLiteral("{TAB}{TAB}")); // over date and shift to the number again
        return;
    }
    if (found.outcome == FatRate::Outcome::Priced)
        txtRate.Show(found.rate);
    ShowAmount();
}

void CounterScreen::txtRate_LostFocus()
{
    if (txtFat.Value() != 0) {
        const double rate = txtRate.Reformat();
        if (rate == 0)
            txtRate.SetFocus(Plain(u"तक्त्यात या फॅटचा दर नाही : दर टाका    Esc : बाहेर"));
        else if (rate > HighestRate)
            txtRate.SetFocus(Plain(u"दर टाका : 60.00 पर्यंत    Esc : बाहेर"));
    }
    ShowAmount();
}

// The amount goes by what the fields show, so that the slip can be checked by hand.
void CounterScreen::ShowAmount()
{
    txtAmount.Show(txtLiters.Value() * txtRate.Value());
}

void CounterScreen::cmdGo_LostFocus()
{
    if (!IsSteppingBack())
        txtCollectionNo.SetFocus();
}
