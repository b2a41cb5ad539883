#pragma once

#include "tests/journeys/ScreenWalks.h"

// Walks without sense over the screens of the office: the days of a member, the slips and the members that
// are looked for, the settings, and the lists of milk, members and payments.
class OfficeWalks : public ScreenWalks {
protected:
    void OverTheDays(int walks);
    void OverTheAbsent(int walks);
    void OverTheSearch(int walks);
    void OverTheSettings(int walks);
    void OverTheMilkOfADay(int walks);
    void OverTheMilkOfOne(int walks);
    void OverTheListOfMembers(int walks);
    void OverTheListOfPayments(int walks);

private:
    void AddDelivery(const char* values);
    QStringList AbsentAtTheFields();
    void ExpectSoundSettings();
    void ExpectCopied(const QString& books, const QString& copy);
};
