#include "collection/DailyRules.h"

#include "collection/Counter.h"
#include "society/RecordModes.h"
#include "society/Wanted.h"

#include <cmath>

namespace {

// The counters keep a number in 16 bits, and so the one after it.
constexpr double HighestNumber = 32766;

bool Insist(bool isKept, Field& field, const Caption& wanted)
{
    if (!isKept)
        field.SetFocus(wanted);
    return isKept;
}

}

DailyRules::DailyRules(const DailyRow& row, const RecordModes& modes) : m_row(row), m_modes(modes) { }

Caption DailyRules::WithWayOut(QStringView wanted)
{
    return Plain(QString(wanted % QStringView(u"    Alt+R : रद्द")));
}

bool DailyRules::HoldsMilk(const NumberField& field)
{
    return field.HoldsNumber() && field.Value() > 0;
}

// The rules

bool DailyRules::InsistOnAll()
{
    if (!Insist(m_row.txtMemberNo.HoldsNumber(), m_row.txtMemberNo, WithWayOut(u"मेम्बर नंबर टाका")))
        return false;
    if (m_modes.IsNew()
        && !Insist(!m_row.cmbMemberName.IsEmpty(), m_row.cmbMemberName,
            WithWayOut(u"नाव टाका, किंवा ↓ ने यादीतून निवडा")))
        return false;
    if (!InsistOnDay() || !InsistOnShift() || !InsistOnNumber())
        return false;
    if (m_modes.IsDelete())
        return true;
    if (!InsistOnAnimal() || (m_modes.IsNew() && !InsistOnNewFigures()))
        return false;
    return Insist(
        PricedBy() == m_pricedFor, m_row.txtFat, Plain(u"नोंद बदलली : Enter ने दर व रक्कम पुन्हा काढा, मग सेव्ह"));
}

bool DailyRules::InsistOnDay()
{
    return m_row.MasKCollectionDate.InsistOnDate(Wanted::Date());
}

bool DailyRules::InsistOnShift()
{
    return Insist(IsShift(m_row.cmbCollectionTime.Text()), m_row.cmbCollectionTime, Wanted::Shift());
}

// A row that is to be changed or deleted has to have been looked at. A new one has a number of its own day
// and shift, which leaving the shift shows; the screen may propose one that couldn't be keyed.
bool DailyRules::InsistOnNumber()
{
    WholeField& number = m_row.txtCollectionNo;
    if (m_modes.IsNew()
        && !Insist(DayAndShift() == m_numberedFor, m_row.cmbCollectionTime,
            Plain(u"दिनांक किंवा वेळ बदलली : Enter ने नवा क्रमांक, मग सेव्ह")))
        return false;
    if (!Insist(number.HoldsNumber(), number, WithWayOut(u"संकलन क्रमांक टाका")))
        return false;
    if (!m_modes.IsNew())
        return Insist(m_isRowShown, number, Plain(u"Enter ने नोंद पाहा, मग पुढे"));
    const double value = number.Value();
    const bool isOfASeries = value >= 1 && value <= HighestNumber && value == std::trunc(value);
    return Insist(
        isOfASeries || number.Text() == m_proposedNo, number, WithWayOut(u"हा क्रमांक चालत नाही : 1 ते 32766"));
}

bool DailyRules::InsistOnAnimal()
{
    return Insist(!m_row.txtAnimal.IsEmpty(), m_row.txtAnimal, Wanted::Animal());
}

bool DailyRules::InsistOnLiters()
{
    return Insist(HoldsMilk(m_row.txtLiters), m_row.txtLiters, WithWayOut(u"लिटर टाका : 0 पेक्षा जास्त"));
}

bool DailyRules::InsistOnFat()
{
    return Insist(HoldsMilk(m_row.txtFat) && m_row.txtFat.Value() <= Counter::HighestFat, m_row.txtFat,
        WithWayOut(u"फॅट टाका : 0.1 ते 30.0"));
}

// The figures of a change may be anything: it writes their values, a new row their texts.
bool DailyRules::InsistOnNewFigures()
{
    return InsistOnLiters() && InsistOnFat()
        && Insist(m_row.txtRate.HoldsNumber(), m_row.txtRate, WithWayOut(u"दर टाका"))
        && Insist(m_row.txtAmount.HoldsNumber(), m_row.txtAmount, WithWayOut(u"रक्कम टाका"));
}

// What the fields show

void DailyRules::RowIsShown()
{
    NumberIsGiven();
    PriceIsGiven();
    m_isRowShown = true;
}

void DailyRules::NumberIsGiven()
{
    m_numberedFor = DayAndShift();
}

void DailyRules::NumberIsProposed()
{
    m_proposedNo = m_row.txtCollectionNo.Text();
    NumberIsGiven();
}

void DailyRules::PriceIsGiven()
{
    m_pricedFor = PricedBy();
}

void DailyRules::Forget()
{
    m_isRowShown = false;
    m_proposedNo.clear();
    m_numberedFor.clear();
    m_pricedFor.clear();
}

QStringList DailyRules::DayAndShift() const
{
    return {m_row.MasKCollectionDate.Text(), m_row.cmbCollectionTime.Text()};
}

// A rate that is keyed makes the amount anew as soon as it is left, so it isn't among them.
QStringList DailyRules::PricedBy() const
{
    return {
        m_row.MasKCollectionDate.Text(), m_row.txtAnimal.Text(), m_row.txtLiters.Text(), m_row.txtFat.Text()};
}
