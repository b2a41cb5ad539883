#include "core/preview/ReportPreviewDialogs.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr int ListHeight = 220;

// The clerk's documents, or the home folder on a machine that has none.
QString DocumentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir::toNativeSeparators(QDir(documents).exists() ? documents : QDir::homePath());
}

// A file name that every file system accepts.
QString ProposedName(const QString& report, const QString& subject)
{
    QString name = report + u' ' + (subject.isEmpty() ? ReportSubject({}) : subject);
    for (QChar& c : name)
        if (QStringView(u"\\/:*?\"<>|").contains(c))
            c = u'-';
    return name;
}

}

Keys::Places frmReportFile::KeyPlaces()
{
    using namespace KeyHints;
    return {{QStringLiteral("frmReportFile"), Plain(u"रिपोर्टची फाइल जतन करणे"), {Next, Back, Leave}}};
}

frmReportFile::frmReportFile(const QString& report, const QString& subject, const QString& ending)
    : Screen("frmReportFile", Shape::Card)
    , m_ending(u'.' + ending)
{
    txtFile.SetText(ProposedName(report, subject) + m_ending);
    txtFolder.SetText(DocumentsFolder());
    SetTitle(Plain(QStringLiteral("%1 फाइल जतन करा").arg(ending.toUpper())));
    BuildWindow();
}

void frmReportFile::BuildWindow()
{
    SetTitleLabel(lblTitle);
    Layout::Form form;
    form.Row(Plain(u"फाइलचे नाव"), txtFile);
    form.Row(Plain(u"फोल्डर"), txtFolder);
    auto* body = new QVBoxLayout;
    body->setSpacing(18);
    body->addLayout(form.Grid());
    body->addLayout(Layout::ButtonRow({&cmdSave, &cmdExit}));
    Layout::Stack(*this, Layout::Header(lblTitle), body, Layout::KeyStrip(Keys::Of(KeyPlaces(), Name())));
    setMinimumWidth(Layout::WideCard.width());
}

// If the name is a whole path, the folder doesn't count.
QString frmReportFile::WantedFile() const
{
    QString name = QDir::fromNativeSeparators(txtFile.Text().trimmed());
    if (name.isEmpty())
        return {};
    if (!name.endsWith(m_ending, Qt::CaseInsensitive))
        name += m_ending;
    return QDir::cleanPath(QDir(QDir::fromNativeSeparators(txtFolder.Text().trimmed())).filePath(name));
}

void frmReportFile::cmdSave_Click()
{
    const QString wanted = WantedFile();
    const QFileInfo file(wanted);
    // NOLINTNEXTLINE(bugprone-branch-clone): the question is asked last, when nothing else stands in the way
    if (wanted.isEmpty()) {
        txtFile.SetFocus();
    } else if (txtFolder.Text().trimmed().isEmpty() || !file.dir().exists()) {
        ShowPlain(QStringLiteral("हा फोल्डर नाही. फाइल जतन झाली नाही.\n%1")
                      .arg(QDir::toNativeSeparators(file.path())));
        txtFolder.SetFocus();
    } else if (file.isDir()) {
        ShowPlain(QStringLiteral("या नावाचा फोल्डर आहे. फाइलला दुसरे नाव द्या.\n%1")
                      .arg(QDir::toNativeSeparators(wanted)));
        txtFile.SetFocus();
    } else if (file.exists() && !Ask(Plain(u"या नावाची फाइल आधीच आहे. ती बदलायची का?"), OnEnter::No)) {
        txtFile.SetFocus();
    } else {
        FileName = wanted;
        Close();
    }
}

void frmReportFile::cmdExit_Click()
{
    Close();
}

Keys::Places frmReportPrinter::KeyPlaces()
{
    return {{QStringLiteral("frmReportPrinter"), Plain(u"प्रिंटर निवडणे"),
        {{QStringLiteral("Enter"), Plain(u"निवडा")}, {QStringLiteral("↑ ↓"), Plain(u"वर-खाली")},
            KeyHints::Leave}}};
}

frmReportPrinter::frmReportPrinter(const QStringList& printers) : Screen("frmReportPrinter", Shape::Card)
{
    SetTitleLabel(lblTitle);
    SetTitle(Plain(u"प्रिंटर निवडा"));
    std::vector<Caption> names;
    for (const QString& printer : printers)
        names.push_back(Plain(printer));
    lstPrinters.SetEntries(names);
    lstPrinters.SetCurrentIndex(0);
    lstPrinters.SetAccessibleName(Title());
    lstPrinters.Widget()->setFixedHeight(ListHeight);

    auto* body = new QVBoxLayout;
    body->addWidget(lstPrinters.Widget());
    Layout::Stack(*this, Layout::Header(lblTitle), body, Layout::KeyStrip(Keys::Of(KeyPlaces(), Name())));
    setMinimumWidth(Layout::WideCard.width());
}

void frmReportPrinter::lstPrinters_Chosen()
{
    Chosen = lstPrinters.Text();
    Close();
}
