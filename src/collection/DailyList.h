#pragma once

#include "platform/forms/DataGrid.h"
#include "platform/forms/Panel.h"

class QWidget;

// Frame1: all deliveries of one member so far, below the fields of the daily collection. The clerk looks a
// day up in it, or picks a row to go on with.
class DailyList {
public:
    explicit DailyList(Screen* screen);

    DataGrid DataGrid1;

    // Binds the list, without a row.
    void Load();

    // Shows it with the rows of a member and goes there, unless there are none.
    void Open(double memberNo);
    void Hide();
    bool IsShown() const { return Frame1.Visible(); }

    QWidget* LaidOut();

private:
    Panel Frame1;
};
