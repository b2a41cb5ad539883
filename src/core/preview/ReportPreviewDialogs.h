#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "platform/forms/MenuList.h"
#include "platform/forms/Screen.h"
#include "platform/shell/FreshKeys.h"

// Asks where a report is to be saved.
class frmReportFile final : public Screen {
public:
    // `report` is the report's title, `ending` that of the file, such as "pdf". A name of the title and the
    // subject, or the day's date if there is no subject, is proposed in the clerk's documents.
    frmReportFile(const QString& report, const QString& subject, const QString& ending);

    // The whole path, in a folder that is there; empty if the clerk has thought better of it.
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

    // The name of the printer; empty if the clerk has thought better of it.
    QString Chosen;

private:
    Label lblTitle{this, "lblTitle"};
    MenuList lstPrinters{this, "lstPrinters", &frmReportPrinter::lstPrinters_Chosen};
    FreshKeys m_keys{*this}; // a key that was meant for the page must not print

    void Enter() override { lstPrinters.Choose(); }
    void lstPrinters_Chosen();
};
