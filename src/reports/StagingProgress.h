#pragma once

#include "core/messages/Progress.h"

class QLayout;

// Shows how far the staging of a report is: a bar with its percent, and the member in hand. Hidden at rest.
class StagingProgress {
public:
    explicit StagingProgress(Screen* screen);

    // What is shown, to be laid out below what the screen asks for.
    QLayout* Line();

    // Says that the report is in hand, while its rows are still gathered.
    void Announce();

    // The same, with a bar for so many rows; without any there is nothing to wait for.
    void Begin(int rows);

    // The member whose row is staged now.
    void Tell(double memberNo, const QString& name);

    // His row is done.
    void Step();

    // The report is out of hand.
    void End();

private:
    void Show();

    Progress m_bar;
    Label lblMessage;
    Label lblMember;
    double m_memberNo = 0;
    QString m_name;
};
