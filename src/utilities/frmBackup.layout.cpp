#include "utilities/frmBackup.h"

#include "platform/forms/Layout.h"

#include <QVBoxLayout>

void frmBackup::LayOut()
{
    constexpr int typeWidth = 200;
    constexpr int driveWidth = 80;
    Layout::Form form;
    form.Row(Shivaji(u"ba^kAp p`kar"), cmbBackupType, typeWidth);
    form.Row(Shivaji(u"fa[-lacao naava"), Text1);

    const Caption choose = Shivaji(u"ba^k Ap\\ faolDr inavaDa");
    for (Control* list :
        {static_cast<Control*>(&Drive1), static_cast<Control*>(&Dir1), static_cast<Control*>(&File1)})
        list->SetAccessibleName(choose);
    Drive1.Widget()->setFixedWidth(driveWidth);
    auto* lists = new QHBoxLayout;
    lists->setSpacing(12);
    lists->addWidget(Drive1.Widget());
    lists->addWidget(Dir1.Widget(), 4);
    lists->addWidget(File1.Widget(), 7); // the longest name is that of books which a restore has replaced

    auto* copying = new QHBoxLayout;
    copying->setSpacing(24);
    copying->addWidget(&Animation1);
    copying->addWidget(m_progress.Widget(), 1);

    lblContent.Widget()->setAlignment(Qt::AlignCenter);
    lblContent.Widget()->setWordWrap(true); // a path may be in it
    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addLayout(form.Grid());
    body->addWidget(Layout::Text(choose));
    body->addLayout(lists, 1);
    body->addLayout(copying);
    body->addWidget(lblContent.Widget());
    body->addWidget(lblGuide.Widget());
    body->addLayout(Layout::ButtonRow({&cmdBackup, &cmdRestore, &cmdExit}));
    Stack(body);
}
