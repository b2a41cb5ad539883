#include "tests/utilities/AutoSettingsTest.h"

#include <QCoreApplication>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QTabBar>

#include <stdexcept>

void AutoSettingsTest::Settings(const std::function<void(Clerk&)>& script)
{
    On<frmAutoSettings>(script);
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

void AutoSettingsTest::Given(const char* columns)
{
    Run("update AutoSettings set " + Q(columns));
}

void AutoSettingsTest::WithoutARow()
{
    Run("delete * from AutoSettings");
}

void AutoSettingsTest::GoTo(Clerk& clerk, const char* control)
{
    clerk.Do([&] {
        Control* wanted = clerk.Top().Find(Q(control));
        auto& pages = dynamic_cast<TabPages&>(*clerk.Top().Find(u"SSTab"));
        for (int page = 0; !wanted->CanTakeFocus() && page < 3; ++page)
            pages.SetTab(page);
        wanted->SetFocus();
    });
    ASSERT_EQ(clerk.Focus(), Q(control));
}

void AutoSettingsTest::Put(Clerk& clerk, const char* control, const char* text)
{
    clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(Q(control))).SetText(Q(text)); });
}

void AutoSettingsTest::PressTab(Clerk& clerk, int page)
{
    clerk.Do([&] {
        auto& strip = dynamic_cast<QTabBar&>(*clerk.Top().Find(u"SSTab")->Widget());
        const QPointF at = strip.tabRect(page - 1).center();
        QMouseEvent press(QEvent::MouseButtonPress, at, strip.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(&strip, &press);
    });
}

void AutoSettingsTest::PickFromList(Clerk& clerk, int row)
{
    clerk.Do([&] {
        for (const QListView* list : clerk.Top().findChildren<QListView*>()) {
            if (!list->isVisible())
                continue;
            QWidget& viewport = *list->viewport();
            const QPointF at = list->visualRect(list->model()->index(row, 0)).center();
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, viewport.mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&viewport, &event);
            }
            return;
        }
        throw std::logic_error("no list is open");
    });
}

QString AutoSettingsTest::Guide(Clerk& clerk)
{
    const auto* label = clerk.Top().findChild<QLabel*>("lblMessage");
    return label->isVisible() ? label->text() : QString();
}
