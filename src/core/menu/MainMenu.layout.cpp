#include "core/menu/MainMenu.h"

#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

void MainMenuFrm::LayOut()
{
    SetTitleLabel(lblTitle);
    SetTitle(Shivaji(u" dUQa saMklana saa^FTvaoAr"));
    ListMain.SetAccessibleName(lblMenu.Shown());
    lblMenu.Widget()->setFont(Look::Font(Look::Size::Large, true));
    ListMain.Widget()->setFont(Look::Font(Look::Size::Large));
    ListMain.Widget()->setFixedSize(Layout::MainList);
    m_day.setFixedWidth(Layout::MainList.width());
    auto* main = new QVBoxLayout;
    main->setSpacing(12);
    main->addWidget(lblMenu.Widget());
    main->addWidget(ListMain.Widget());
    main->addStretch(1);
    main->addWidget(&m_day);

    auto* lists = new QHBoxLayout;
    lists->setSpacing(24);
    lists->addLayout(main);
    for (MenuList* list : m_subLists)
        lists->addWidget(list->Widget(), 1);
    lists->addStretch();

    auto* foot = new QHBoxLayout;
    foot->setSpacing(24);
    for (Label* label : {&lblVersion, &lblVersionFoot})
        label->Widget()->setFont(Look::Font(Look::Size::Small));
    for (Label* label : {&lblTodayDate, &lblSystem, &lblVersion, &lblVersionFoot})
        foot->addWidget(label->Widget());
    foot->insertStretch(1, 1);
    foot->insertStretch(foot->count() - 1, 1);

    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(lists, 1);
    body->addLayout(foot);
    QWidget* const head = Layout::Header(lblTitle, lblCompanyTitle, lblAcYear);
    lblCompanyTitle.Widget()->setFont(Look::Font(Look::Size::Normal, true));
    Layout::Stack(*this, head, body, Layout::KeyStrip(Keys::Of(Name())));
}
