#include "core/start/OpeningScreens.h"

#include "core/menu/MainMenu.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr QRgb AcceptColour = qRgb(0x00, 0xFF, 0x00);
constexpr QRgb RejectColour = qRgb(0xFF, 0x00, 0x00);

// The sign beside the caution, drawn large enough for the largest window.
QLabel* CautionSign()
{
    constexpr int side = 96;
    constexpr int dots = 4; // for each pixel of its side at the smallest size
    QPixmap picture(side * dots, side * dots);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(dots, dots);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(Look::Ink), 4));
    painter.setBrush(QColor(0xF2, 0xC0, 0x37));
    painter.drawPolygon(QPolygon({QPoint(side / 2, 8), QPoint(side - 6, side - 10), QPoint(6, side - 10)}));
    QFont font = Look::Font(Look::Size::Title, true);
    font.setPixelSize(54);
    painter.setFont(font);
    painter.drawText(QRect(0, 16, side, side - 20), Qt::AlignCenter, QStringLiteral("!"));
    auto* sign = new QLabel;
    sign->setPixmap(picture);
    sign->setScaledContents(true);
    sign->setFixedSize(side, side);
    return sign;
}

}

frmAbout::frmAbout() : Screen("frmAbout", Shape::Card)
{
    SetTitleLabel(lblTitle);
    SetTitle(Shivaji(u" dUQa saMklana saa^FTvaoAr"));
    for (Label* label : {&lblSystem, &lblVersion})
        label->Widget()->setAlignment(Qt::AlignCenter);
    lblSystem.Widget()->setFont(Look::Font(Look::Size::Large));

    auto* name = new QLabel(QStringLiteral("Vetrolan"));
    QFont font = Look::Font(Look::Size::Title, true);
    font.setPixelSize(56);
    name->setFont(font);
    name->setAlignment(Qt::AlignCenter);

    auto* body = new QVBoxLayout;
    body->setSpacing(12);
    body->addStretch(1);
    body->addWidget(name);
    body->addWidget(lblSystem.Widget());
    body->addWidget(lblVersion.Widget());
    body->addStretch(1);
    body->addLayout(Layout::ButtonRow({&cmdOK, &cmdExit}));
    Layout::Stack(*this, Layout::Header(lblTitle), body, nullptr);
    setMinimumSize(Layout::GreetingCard);
}

void frmAbout::cmdOK_Click()
{
    m_accepted = true;
    Close();
}

void frmAbout::cmdExit_Click()
{
    Close();
}

frmTip::frmTip() : Screen("frmTip", Shape::Card)
{
    cmdOk.SetColours(QColor(AcceptColour), QColor(Look::PlainColour));
    Command1.SetColours(QColor(RejectColour), QColor(Look::PlainColour));

    SetTitleLabel(lblTitle);
    SetTitle(Plain(u" Caution !"));
    lblTip.SetCaption(
        Plain(u" It is necessary that You should take BACKUP of Company Data frequently on "
              u"ReWritable CD (Recommended)\n\n"
              u"We have given the facility to take the backup on Hard Disk / Floppy and CD also ( "
              u"with the help of CD Writer)\n\n"
              u"We (Developer) will not take any responsibility for the loss of data."));
    lblTip.Widget()->setWordWrap(true);

    auto* notice = new QHBoxLayout;
    notice->setSpacing(20);
    notice->addWidget(CautionSign(), 0, Qt::AlignTop);
    notice->addWidget(lblTip.Widget(), 1);
    auto* body = new QVBoxLayout;
    body->addLayout(notice, 1);
    body->addLayout(Layout::ButtonRow({&cmdOk, &Command1}));
    Layout::Stack(*this, Layout::Header(lblTitle), body, nullptr);
    setMinimumSize(Layout::WideCard);
}

void frmTip::cmdOk_Click()
{
    m_accepted = true;
    Close();
}

void frmTip::Command1_Click()
{
    Close();
}

void ShowOpeningScreens()
{
    {
        frmAbout about;
        about.ShowModal();
        if (!about.Accepted())
            return;
    }
    {
        frmTip tip;
        tip.ShowModal();
        if (!tip.Accepted())
            return;
    }
    MainMenuFrm menu;
    menu.ShowModal();
}
