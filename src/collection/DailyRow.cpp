#include "collection/DailyRow.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/text/Dates.h"
#include "society/Names.h"

#include <utility>

void DailyRow::Clear()
{
    for (Field* field : std::initializer_list<Field*>{&txtMemberNo, &cmbMemberName, &MasKCollectionDate,
             &cmbCollectionTime, &txtCollectionNo, &txtAnimal})
        field->Clear();
    for (Field* figure : std::initializer_list<Field*>{&txtLiters, &txtFat, &txtRate, &txtAmount})
        figure->SetText(QStringLiteral("0"));
}

void DailyRow::Show(const Recordset& row)
{
    txtMemberNo.SetText(row[u"MemberNo"].Text());
    ShowMember(cmbMemberName, row);
    MasKCollectionDate.SetDate(row[u"CollectionDate"].Date());
    cmbCollectionTime.SetText(row[u"CollectionTime"].Text());
    txtCollectionNo.SetText(row[u"CollectionNo"].Text());
    txtAnimal.SetText(row[u"Animal"].Text());
    for (const auto& [figure, column] : std::initializer_list<std::pair<NumberField*, QStringView>>{
             {&txtLiters, u"Liters"}, {&txtFat, u"Fat"}, {&txtRate, u"Rate"}, {&txtAmount, u"Amount"}}) {
        figure->SetText(row[column].Text());
        Mend(*figure);
    }
}

void DailyRow::Mend(NumberField& figure)
{
    if (!figure.HoldsNumber())
        figure.SetText(QStringLiteral("0"));
}

QString DailyRow::Day() const
{
    return SqlDay(MasKCollectionDate.Date());
}

QString DailyRow::InsertStatement() const
{
    return Sql(
        u"INSERT INTO MilkCollections (CompanyId,MemberNo,MemberName,Animal,CollectionDate,CollectionTime,"
        u"CollectionNo,Liters,Fat,Rate,Amount) VALUES (",
        gAppState.gCompanyId, u",", txtMemberNo.Text(), u",", Quoted(cmbMemberName.Text()), u",",
        Quoted(txtAnimal.Text()), u",", Quoted(MasKCollectionDate.Text()), u",",
        Quoted(cmbCollectionTime.Text()), u",", txtCollectionNo.Text(), u",", txtLiters.Text(), u",",
        txtFat.Text(), u",", txtRate.Text(), u",", txtAmount.Text(), u")");
}

QString DailyRow::UpdateStatement() const
{
    return Sql(u"UPDATE MilkCollections SET Liters=", txtLiters.Value(), u",Fat=", txtFat.Value(), u",Rate=",
        txtRate.Value(), u",Amount=", txtAmount.Value(), u" WHERE CollectionNo=", txtCollectionNo.Value(),
        u" AND CollectionDate=", Day(), u" AND MemberNo=", txtMemberNo.Value(), u" AND CollectionTime =",
        Quoted(cmbCollectionTime.Text()), u"AND Animal=", Quoted(txtAnimal.Text()));
}

// It takes the number of this member and shift on every day, not only on the one shown.
QString DailyRow::DeleteStatement() const
{
    return Sql(u" DELETE * FROM MilkCollections WHERE CompanyId= ", gAppState.gCompanyId,
        u" AND CollectionNo= ", txtCollectionNo.Value(), u" AND MemberNo=", txtMemberNo.Value(),
        u" AND CollectionTime=", Quoted(cmbCollectionTime.Text()));
}
