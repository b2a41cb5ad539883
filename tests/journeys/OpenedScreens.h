#pragma once

#include <QObject>
#include <QStringList>

#include <set>

// Keeps the names of all screens that are shown while it lives.
class OpenedScreens final : public QObject {
public:
    OpenedScreens();
    ~OpenedScreens() override;

    // Those of the given names that weren't shown.
    QStringList Without(const std::set<QString>& names) const;

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    std::set<QString> m_names;
};
