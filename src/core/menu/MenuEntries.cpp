#include "core/menu/MenuEntries.h"

const std::vector<MenuEntry>& MenuEntries::Master()
{
    static const std::vector<MenuEntry> entries = {
        {u"]%padkacao rijasTr", QStringLiteral("frmMembers"), {}},
        {u"ga`ahkacao rijasTr", QStringLiteral("frmCustomers"), {}},
        {u"f^T dr badla", QStringLiteral("frmNewFatRates"), {}},
        {Back, {}, {}},
    };
    return entries;
}

std::vector<MenuEntry> MenuEntries::SVouchers(bool withTransport)
{
    std::vector<MenuEntry> entries = {
        {u"dUQa saMklana 1", QStringLiteral("frmMilkCollections"), {}},
        {u"dUQa saMklana 2", QStringLiteral("frmCollectionGate"), {}},
        {u"dUQa saMklana 3", QStringLiteral("frmDailyCollection"), {}},
        {u"]cala naaoMd", QStringLiteral("frmUchalVouchers"), {}},
        {u"kpat zrvaa", QStringLiteral("frmInstallment"), {}},
        {u"dUQa pomaonT", QStringLiteral("frmNewMilkPayment"), {}},
        {u"dUQa ivaËI", QStringLiteral("frmMilkSales"), {}},
    };
    if (withTransport)
        entries.push_back({u"dUQa vaahtUk Kca-", {}, {}});
    entries.push_back({Back, {}, {}});
    return entries;
}

const std::vector<MenuEntry>& MenuEntries::MReports()
{
    const auto registers = QStringLiteral("frmReportMilkPaymentsRegister");
    const auto purchaseSales = QStringLiteral("frmReportPurchaseSales");
    const auto books = QStringLiteral("frmReportCashBook");
    static const std::vector<MenuEntry> entries = {
        {u"dUQa saMklana irpaoT-", QStringLiteral("frmReportMilkCollections"), {}},
        {u"dUQa saMklana pavatI", QStringLiteral("frmSearchCollections"), {}, {}, true},
        {u"dUQa pomaonT irpaoT-", QStringLiteral("frmReportMilkPayments"), {}},
        {u"dUQa pomaonT ilasT", QStringLiteral("frmReportPaymentList"), {}},
        {u"dUQa pomaonT rijasTr", registers, QStringLiteral("PR"), u" dUQa pomaonT rijasTr irpaoT-"},
        {u"zova rijasTr", registers, QStringLiteral("TR"), u" zova rijasTr irpaoT-"},
        {u"]cala rijasTr", registers, QStringLiteral("UR"), u" ]cala rijasTr irpaoT-"},
        {u"vaOyai@tk ]cala irpaoT-", registers, QStringLiteral("UD"), u" ]cala rijasTr irpaoT-"},
        {u"vaaZÀtUT p~k", QStringLiteral("frmVadhTootReport"), {}},
        {u"dUQa KrodI irpaoT-", purchaseSales, QStringLiteral("MP"), u"  dUQa KrodI irpaoT-"},
        {u"dUQa ivaËI irpaoT-", purchaseSales, QStringLiteral("MS"), u"  dUQa ivaËI irpaoT-"},
        {u"dUQa ivaËIcaI tulanaa%mak AakDovaarI", books, QStringLiteral("V"),
            u"  dUQa ivaËIcaI tulanaa%mak AakDovaarI"},
        {u"dUQa saMklana À ivaËI irpaoT-", QStringLiteral("frmReportMilkPS"), {}},
        {u"saBaasadaMcaI yaadI", QStringLiteral("frmReportMembersList"), {}},
        {u"k^Sa bauk", books, QStringLiteral("C"), u"  k^Sa bauk"},
        {u"ba^nk bauk", books, QStringLiteral("B"), u"  ba^nk bauk"},
        {Back, {}, {}},
    };
    return entries;
}

const std::vector<MenuEntry>& MenuEntries::YearlyReport()
{
    const auto registers = QStringLiteral("frmReportMilkPaymentsRegister");
    static const std::vector<MenuEntry> entries = {
        {u"]cala yaadI", registers, QStringLiteral("UchalBalanceStatement")},
        {u"zova yaadI", registers, QStringLiteral("ThevBalanceStatement")},
        {Back, {}, {}},
    };
    return entries;
}

const std::vector<MenuEntry>& MenuEntries::Utilities()
{
    static const std::vector<MenuEntry> entries = {
        {u"ba^k Ap\\ fa[-lsa", QStringLiteral("frmBackup"), {}},
        {u"Aa^Tao saoTIMgja", QStringLiteral("frmAutoSettings"), {}},
        {u"baaonasa TUla", QStringLiteral("frmBonusPayments"), {}},
        {u"zovaIcaa kalaavaQaI", QStringLiteral("frmThevDate"), {}},
        {Back, {}, {}},
    };
    return entries;
}

const MenuEntry* MenuEntries::Find(const QString& text)
{
    static const std::vector<MenuEntry> vouchers = SVouchers(true);
    for (const std::vector<MenuEntry>* list :
        {&Master(), &vouchers, &MReports(), &YearlyReport(), &Utilities()})
        for (const MenuEntry& entry : *list)
            if (entry.text == text)
                return &entry;
    return nullptr;
}

std::vector<Caption> MenuEntries::Captions(const std::vector<MenuEntry>& entries)
{
    std::vector<Caption> captions;
    captions.reserve(entries.size());
    for (const MenuEntry& entry : entries)
        captions.push_back(Shivaji(entry.text));
    return captions;
}
