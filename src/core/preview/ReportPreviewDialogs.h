#pragma once

#include "core/menu/Keys.h"
#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "platform/forms/MenuList.h"
#include "platform/forms/Screen.h"
#include "platform/shell/FreshKeys.h"

// Asks where a report is to be saved.
class frmReportFile final : public Screen {
public:
    // `report` is the report's title, `ending` the file's, such as "pdf". It proposes a file in the clerk's
    // documents, named for the title and the subject, or today's date if the subject is empty.
    frmReportFile(const QString& report, const QString& subject, const QString& ending);

    static Keys::Places KeyPlaces();

    // The whole path, in a folder that exists; empty if the clerk left without saving.
    QString FileName;

private:
    Label lblTitle{this, "lblTitle"};
    PlainField txtFile{this, "txtFile"};
    PlainField txtFolder{this, "txtFolder"};
    Button cmdSave{this, "cmdSave", Plain(u"जतन करा"), &frmReportFile::cmdSave_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"baahor"), &frmReportFile::cmdExit_Click};

    void BuildWindow();
    void cmdSave_Click();
    void cmdExit_Click();
    QString WantedFile() const;

    QString m_ending;
};

// Asks which of several printers is to print.
class frmReportPrinter final : public Screen {
public:
    explicit frmReportPrinter(const QStringList& printers);

    static Keys::Places KeyPlaces();

    // The name of the printer; empty if the clerk left without choosing.
    QString Chosen;

private:
    Label lblTitle{this, "lblTitle"};
    MenuList lstPrinters{this, "lstPrinters", &frmReportPrinter::lstPrinters_Chosen};
    FreshKeys m_keys{*this}; // a key that was meant for the page must not print

    void Enter() override { lstPrinters.Choose(); }
    void lstPrinters_Chosen();
};
