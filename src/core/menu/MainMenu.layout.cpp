#include "core/menu/MainMenu.h"

#include "core/menu/Keys.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

void MainMenuFrm::LayOut()
{
    SetTitleLabel(lblTitle);
    SetTitle(Shivaji(u" dUQa saMklana saa^FTvaoAr"));
    ListMain.SetAccessibleName(lblMenu.Shown());
    auto* head = new QHBoxLayout;
    for (Label* label : {&lblSystem, &lblVersion})
        head->addWidget(label->Widget());
    lblVersion.Widget()->setFont(Look::Font(Look::Size::Small));
    head->insertStretch(1, 1);

    ListMain.Widget()->setFixedWidth(340);
    lblMenu.Widget()->setFont(Look::Font(Look::Size::Large, true));
    auto* main = new QVBoxLayout;
    main->addWidget(lblMenu.Widget());
    main->addWidget(ListMain.Widget(), 1);

    auto* lists = new QHBoxLayout;
    lists->setSpacing(20);
    lists->addLayout(main);
    for (MenuList* list : m_subLists)
        lists->addWidget(list->Widget(), 4);
    lists->addStretch(1);

    auto* foot = new QHBoxLayout;
    foot->addWidget(lblTodayDate.Widget());
    foot->addStretch(1);
    lblVersionFoot.Widget()->setFont(Look::Font(Look::Size::Small));
    foot->addWidget(lblVersionFoot.Widget());

    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(head);
    body->addLayout(lists, 1);
    body->addLayout(foot);
    Layout::Stack(*this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), body,
        Layout::KeyStrip(Keys::Of(Name())));
}
