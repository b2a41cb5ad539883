#pragma once

#include "backups/BooksCopies.h"
#include "core/messages/Progress.h"
#include "platform/forms/Button.h"
#include "platform/forms/ChoiceCombo.h"
#include "platform/forms/FolderList.h"
#include "platform/forms/PopupMenu.h"
#include "society/SocietyScreen.h"
#include "utilities/CopyAnimation.h"

// Copies the books into a folder, or brings a year's copy back. The clerk passes it on the way out of the
// program. The connection is closed while the file is copied, and stays so after a regular backup until the
// screen is left. What fails ends the program with a sentence; books and older copies are then as they were.
class frmBackup final : public SocietyScreen {
public:
    frmBackup();

    static Keys::Places KeyPlaces();

private:
    ChoiceCombo cmbBackupType;
    PlainField Text1{this, "Text1"};
    DriveList Drive1{this, "Drive1"};
    FolderList Dir1;
    MenuList File1{this, "File1"};
    Button cmdBackup{this, "cmdBackup", Shivaji(u"ba^k Ap\\"), &frmBackup::cmdBackup_Click};
    Button cmdRestore{this, "cmdRestore", Shivaji(u"rIsTaoAr"), &frmBackup::cmdRestore_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmBackup::cmdExit_Click};

    PopupMenu mnuBackup;
    Label lblContent{this, "lblContent"}; // what is being done, then what lies in the copy
    CopyAnimation Animation1{"Animation1"};
    Progress m_progress{this};
    BooksCopies::Work m_work = BooksCopies::Work::Copying;

    void LayOut();
    void Load() override;
    void Escape() override { ReopenAndClose(); }
    void CloseBox() override { ReopenAndClose(); }
    void ReopenAndClose();

    void Drive1_Change();
    void Dir1_Change();
    void mnuFolder_Click();
    void cmdBackup_Click();
    void cmdRestore_Click();
    void cmdExit_Click();

    bool IsHistory() const;
    bool CheckFileName();
    QString HistoryTarget() const;
    void ShowWhatARestoreBrings(); // in the guide of its button

    // Around a copy
    void BeginCopy();
    void EndCopy();
    void CopyTo(const QString& target);
    BooksCopies::Progress ShownProgress();
    void ShowWork(BooksCopies::Work work);
    void ShowContent(QStringView where, const BooksContent& content);
    void RefreshLists();
};
