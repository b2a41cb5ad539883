#include "utilities/frmBackup.h"

#include "core/messages/Messages.h"
#include "core/start/BooksOpening.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Painting.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"
#include "platform/text/Dates.h"

#include <algorithm>

namespace {

constexpr QStringView Regular = u"rogyaular"; // रेग्युलर
constexpr QStringView History = u"ihsTrI"; // हिस्ट्री
constexpr QStringView BooksName = u"Morvelta.mdb";

FileSystem& Disks()
{
    return *World::Current().fileSystem;
}

// The place on this machine of a path that the screen shows.
QString LocalOf(const QString& path)
{
    return LocalPath(FileSystem::AbsolutePath(path));
}

QString BooksFile()
{
    return LocalAppFile(BooksName);
}

QString DefaultFolder()
{
    return Paths::AppFolder.toString() + u"Backup";
}

bool HasDoubledRoot(const QString& path)
{
    return path.size() > 3 && path[3] == u'\\';
}

// A file in the backup folder. At a drive's root the backslash is doubled.
QString InFolder(QStringView name)
{
    return gAppState.gBackupFolder + u'\\' + name;
}

QString DatedName()
{
    const QString day = gAppState.gAppDate.toString(QStringLiteral("dd MMMM yyyy"));
    return InFolder(QString(u"Morvelta On " + day + u".mdb"));
}

QString PlainName()
{
    return InFolder(BooksName);
}

QString YearFile(const QString& year, int company)
{
    return u'Y' + year + u'C' + QString::number(company) + u".mdb";
}

QString YearFile()
{
    return YearFile(gAppState.gAccountingYear, gAppState.gCompanyId);
}

QString YearName()
{
    const QString name = InFolder(YearFile());
    return HasDoubledRoot(name) ? gAppState.gBackupFolder + YearFile() : name;
}

// A name that the machine would take for a folder that is there: this one or the one above it.
bool IsOnlyDots(const QString& name)
{
    return std::all_of(name.begin(), name.end(), [](QChar c) { return c == u'.' || c.isSpace(); });
}

// Only a disk that stays, or a folder of the network.
bool IsTrusted(const QString& folder)
{
    using Kind = FileSystem::DriveKind;
    const Kind kind = Disks().KindOfDrive(folder);
    return kind == Kind::Fixed || kind == Kind::Network;
}

QString SentenceOf(BooksCopies::Work work)
{
    switch (work) {
    case BooksCopies::Work::Copying:
        return QStringLiteral("प्रत करत आहे …");
    case BooksCopies::Work::Checking:
        return QStringLiteral("प्रतीचे प्रत्येक पान वाचून तपासत आहे. थोडे थांबा …");
    case BooksCopies::Work::Keeping:
        break;
    }
    return QStringLiteral("आताची वही बाजूला ठेवत आहे …");
}

void ReadCompany()
{
    const Recordset company(gCn, u"SELECT * FROM CompanySelected");
    if (company.Eof())
        return;
    gAppState.gCompanyId = static_cast<int>(company[u"CompanyId"].Number());
    gAppState.gAccountingYear = company[u"AccountingYear"].Text();
}

// What the next restore looks for: it reads the company from the books. While they are closed, nobody has
// changed it since the copy that closed them.
QString NextYearFile()
{
    if (!gCn.IsOpen())
        return YearFile();
    const Recordset company(gCn, u"SELECT * FROM CompanySelected");
    return company.Eof()
        ? YearFile()
        : YearFile(company[u"AccountingYear"].Text(), static_cast<int>(company[u"CompanyId"].Number()));
}

}

Keys::Places frmBackup::KeyPlaces()
{
    using namespace KeyHints;
    return {{QStringLiteral("frmBackup"), Shivaji(u"ba^k Ap\\ fa[-lsa"),
        {Next, Back, OneOfTwo, {QStringLiteral("Alt+↓"), Plain(u"यादी"), {}, true, true}, ChooseOption,
            {QStringLiteral("Shift+F10"), Plain(u"नवीन फोल्डर"), {}, true, true}, ExitButton, Leave}}};
}

frmBackup::frmBackup()
    : SocietyScreen(KeyPlaces(), Shivaji(u"ba^k Ap\\ fa[-lsa"))
    , cmbBackupType(this, "cmbBackupType", {Regular.toString(), History.toString()})
    , Dir1(this, "Dir1", [](const QString& folder) { return Disks().Folders(folder); })
    , mnuBackup(Dir1, {{Plain(u"&Create Folder"), Handler(&frmBackup::mnuFolder_Click).On(*this)}})
{
    When(Drive1.Change, &frmBackup::Drive1_Change);
    When(Dir1.Change, &frmBackup::Dir1_Change);
    cmbBackupType.SetText(Regular.toString());
    cmbBackupType.SetGuide(Shivaji(u"  1–rogyaular   2–ihsTrI"));
    Text1.SetGuide(Plain(u"हिस्ट्री बॅकअप या नावाने होतो"));
    Drive1.SetGuide(Plain(u"↑ ↓ ने निवडा, Enter : ड्राइव्ह उघडा"));
    Dir1.SetGuide(Plain(u"↑ ↓ ने निवडा, Enter : फोल्डर उघडा    Shift+F10 : नवीन फोल्डर"));
    File1.SetGuide(Plain(u"या फोल्डरमधील फाइल्स"));
    cmdBackup.SetGuide(Plain(u"Enter : बॅकअप घ्या"));
    cmbBackupType.AddOwnKey(KeyHints::OneOfTwo.key);
    for (Control* list : {static_cast<Control*>(&Drive1), static_cast<Control*>(&Dir1)})
        list->AddOwnKey(KeyHints::ChooseOption.key);
    Dir1.AddOwnKey(QStringLiteral("Shift+F10"));
    LayOut();
}

void frmBackup::Load()
{
    Disks().CreateFolder(DefaultFolder());
    Drive1.SetDrives(Disks().Drives());
    Drive1.SetDrive(DefaultFolder().left(3));
    Dir1.SetFolder(DefaultFolder());
}

void frmBackup::ReopenAndClose()
{
    ReopenBooks();
    Close();
}

void frmBackup::cmdExit_Click()
{
    ReopenAndClose();
}

// Choosing

void frmBackup::Dir1_Change()
{
    gAppState.gBackupFolder = Dir1.Folder();
    RefreshLists();
    Text1.SetText(DatedName());
    ShowWhatARestoreBrings();
}

void frmBackup::Drive1_Change()
{
    Dir1.SetFolder(Drive1.Drive());
    Text1.SetText(Dir1.Folder());
}

void frmBackup::mnuFolder_Click()
{
    const QString name =
        World::Current().inputBox->Ask(QStringLiteral("Enter Folder Name"), QStringLiteral("Backup"));
    if (name.isEmpty())
        return;
    const QString path = HasDoubledRoot(InFolder(name)) ? gAppState.gBackupFolder + name : InFolder(name);
    if (name.contains(u'/') || name.contains(u'\\') || IsOnlyDots(name) || !Disks().CreateFolder(path)) {
        ShowNotice(Plain(u"हे फोल्डर तयार करता आले नाही. नावात / किंवा \\ नसावे; नाव बदला किंवा दुसरे फोल्डर निवडा."));
        return;
    }
    Dir1.Refresh();
    Dir1.SetFolder(FileSystem::AbsolutePath(path));
}

// Backup

void frmBackup::cmdBackup_Click()
{
    if (!CheckFileName())
        return;
    ReopenBooks();
    if (!IsTrusted(gAppState.gBackupFolder))
        gAppState.gBackupFolder = DefaultFolder();
    BeginCopy();
    if (IsHistory()) {
        CopyTo(HistoryTarget());
        EndCopy();
        ReopenBooks();
        Drive1.SetDrives(Disks().Drives());
        Dir1.Refresh();
    } else {
        cmbBackupType.SetText(Regular.toString());
        CopyTo(PlainName());
        EndCopy();
    }
    RefreshLists();
}

bool frmBackup::IsHistory() const
{
    return cmbBackupType.Text().trimmed() == History;
}

// Returns whether the copy can have the name. No other file beside the books may be lost under a copy.
bool frmBackup::CheckFileName()
{
    if (Text1.IsEmpty()) {
        Text1.SetText(DatedName());
        ShowPlain(QStringLiteral("Please check the filename"));
        return false;
    }
    if (IsHistory() && !HistoryTarget().endsWith(u".mdb", Qt::CaseInsensitive)) {
        ShowNotice(Plain(u"फाइलच्या नावाचा शेवट .mdb असा हवा. नाव दुरुस्त करा."));
        Text1.SetFocus();
        return false;
    }
    return true;
}

// A folder with its backslash, as the choice of a drive leaves it, takes the plain name.
QString frmBackup::HistoryTarget() const
{
    const QString named = Text1.Text();
    if (HasDoubledRoot(named))
        return gAppState.gBackupFolder + YearFile();
    return named.endsWith(u'\\') ? named + BooksName : named;
}

// Where the copy lies is said if it isn't in the folder that is shown.
void frmBackup::CopyTo(const QString& target)
{
    const BooksContent content =
        BooksCopies::BackUp(BooksFile(), LocalOf(target), gAppState.gDbPassword, ShownProgress());
    const bool isElsewhere = FileSystem::AbsolutePath(QString(target + u"\\..")) != Dir1.Folder();
    const QString where = FileSystem::AbsolutePath(target) + u" मध्ये";
    ShowContent(isElsewhere ? where : QStringLiteral("बॅकअपमध्ये"), content);
}

// Restore

void frmBackup::cmdRestore_Click()
{
    ReopenBooks();
    BeginCopy();
    RestorePlan plan;
    plan.copy = LocalOf(YearName());
    plan.books = BooksFile();
    plan.keptFolder = LocalOf(DefaultFolder());
    plan.password = gAppState.gDbPassword;
    plan.now = World::Current().clock->Now();
    ShowContent(u"परत आणलेल्या वहीत", BooksCopies::Restore(plan, ShownProgress()));
    EndCopy();
    ReopenBooks();
    ShowWhatARestoreBrings();
    RefreshLists();
}

void frmBackup::ShowWhatARestoreBrings()
{
    cmdRestore.SetGuide(Plain(QString(u"Enter : " + NextYearFile() + u" ही फाइल परत आणा")));
}

// Around a copy

void frmBackup::BeginCopy()
{
    constexpr int percents = 100;
    ShowWork(BooksCopies::Work::Copying);
    Animation1.Play();
    m_progress.Begin(percents);
    ReadCompany();
    ShowWhatARestoreBrings();
    CloseBooks();
}

// Reading the pages paints nothing, so what is begun is painted at once.
BooksCopies::Progress frmBackup::ShownProgress()
{
    return [this](BooksCopies::Work work, int percent) {
        Animation1.Step();
        m_progress.StepTo(percent);
        if (work == m_work)
            return;
        ShowWork(work);
        Painting::LetIn();
    };
}

void frmBackup::ShowWork(BooksCopies::Work work)
{
    m_work = work;
    lblContent.SetCaption(Plain(SentenceOf(work)));
}

void frmBackup::EndCopy()
{
    Animation1.Stop();
    m_progress.End();
}

void frmBackup::ShowContent(QStringView where, const BooksContent& content)
{
    const QString day = content.newestDay.isValid() ? DateText(content.newestDay) : QStringLiteral("नाही");
    lblContent.SetCaption(Plain(QStringLiteral("%1 : दूध संकलन %2, मेम्बर %3, पेमेंट %4, शेवटचा दिवस %5")
                                    .arg(where)
                                    .arg(content.deliveries)
                                    .arg(content.members)
                                    .arg(content.payments)
                                    .arg(day)));
}

void frmBackup::RefreshLists()
{
    std::vector<Caption> files;
    for (const QString& name : Disks().Files(Dir1.Folder(), QStringLiteral("*.mdb")))
        files.push_back(Plain(name));
    File1.SetEntries(files);
    File1.SetCurrentIndex(files.empty() ? -1 : 0);
}
