#include "payments/frmInstallment.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Pieces.h"
#include "society/Names.h"
#include "society/Queries.h"

#include <QVBoxLayout>

namespace {

std::vector<DataGrid::Column> InstallmentColumns()
{
    return {
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naM."), 150, QStringLiteral("#######0"), true},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naava"), 0},
        {QStringLiteral("Kapat"), Shivaji(u"kpat r@kma"), 200, QStringLiteral("#####0.00"), true},
    };
}

// A row without a name gets that of the number.
QString NameOf(const GridRow& row)
{
    QString typed = row.Text(u"MemberName");
    if (!typed.trimmed().isEmpty())
        return typed;
    const Recordset member = MemberOfNumber(row.Number(u"MemberNo"));
    return member.Eof() ? typed : member[u"MemberName"].Text();
}

// An empty cell is no installment at all, which is less than one of 0.
SqlText KapatOf(const GridRow& row)
{
    return row.Text(u"Kapat").trimmed().isEmpty() ? SqlText(u"null") : Sql(row.Number(u"Kapat"));
}

// Books of long ago may have a member twice, even in rows that are alike.
SqlText TheOne(const GridRow& row)
{
    return Sql(u" where rowid=", row.Before(u"rowid").Number());
}

}

Keys::Places frmInstallment::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmInstallment"), Shivaji(u"kpat zrvaa"),
            {{QStringLiteral("Enter"), Plain(u"पुढचा रकाना, शेवटी नोंद ठेवा")},
                {QStringLiteral("↑ ↓"), Plain(u"वर-खाली")}, {QStringLiteral("Del"), Plain(u"नोंद काढा")},
                {QStringLiteral("Esc"), Plain(u"टाकलेले रद्द, मग बाहेर")}}},
    };
}

frmInstallment::frmInstallment()
    : SocietyScreen(KeyPlaces(), Shivaji(u"kpat zrvaa"))
    , DataGrid1(this, "DataGrid1", InstallmentColumns())
{
    DataGrid1.SetGuide(Plain(u"शेवटच्या रिकाम्या ओळीत नवीन मेम्बर टाका"));
    DataGrid1.Edit({[this](const GridRow& row) { return Write(row); },
        [this](const GridRow& row) { return Remove(row); }});
    LayOut();
}

void frmInstallment::Load()
{
    DataGrid1.Bind(gCn,
        QStringLiteral("select MemberNo,MemberName,Kapat,rowid from InstallmentTable order By MemberNo"));
}

bool frmInstallment::Write(const GridRow& row)
{
    if (!InsistOnMember(row))
        return false;
    Transaction writing(gCn);
    if (row.IsNew())
        gCn.Execute(Sql(u"insert into InstallmentTable(MemberNo,MemberName,Kapat) values(",
            Values(row.Number(u"MemberNo"), NameOf(row)), u",", KapatOf(row), u")"));
    else
        gCn.Execute(Sql(u"update InstallmentTable set MemberNo=", row.Number(u"MemberNo"), u",MemberName=",
            Quoted(NameOf(row)), u",Kapat=", KapatOf(row), TheOne(row)));
    writing.Commit();
    return true;
}

bool frmInstallment::Remove(const GridRow& row)
{
    Transaction removing(gCn);
    gCn.Execute(Sql(u"delete * from InstallmentTable", TheOne(row)));
    removing.Commit();
    return true;
}

// A payment takes the first row of a member, so a second one would never count.
bool frmInstallment::InsistOnMember(const GridRow& row)
{
    const double number = row.Number(u"MemberNo");
    if (number < 1) {
        DataGrid1.SetFocus(Plain(u"मेम्बर नंबर टाका    Esc : नोंद रद्द"));
        return false;
    }
    const bool isSame = !row.IsNew() && row.Before(u"MemberNo").Number() == number;
    if (!isSame && Finds(Sql(u"select * from InstallmentTable where MemberNo=", number))) {
        DataGrid1.SetFocus(Plain(u"या मेम्बरची कपात यादीत आहे    Esc : नोंद रद्द"));
        return false;
    }
    return true;
}

void frmInstallment::LayOut()
{
    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addWidget(Pieces::List(DataGrid1, 34, Look::Size::Large), 1);
    body->addWidget(lblGuide.Widget());
    DataGrid1.SetAccessibleName(Title());
    Stack(body, {20, 14, 20, 14});
}
