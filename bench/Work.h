#pragma once

#include "bench/Outcomes.h"
#include "tools/clerk/Clerk.h"

#include <QDate>

#include <functional>
#include <memory>
#include <string>

// A day as the engine has it, and as it is typed into a field.
std::string Iso(const QDate& day);
QString Typed(const QDate& day);

// Some work of the program on the open books, beside its floor. It can be done again and again.
class Work {
public:
    virtual ~Work() = default;

    // Does it on the real screen by keys. Returns its seconds.
    virtual double ByScreen() = 0;

    // The same statements prepared. Returns their seconds; throws if they leave other rows than the screen.
    virtual double ByFloor() = 0;

    // The longest time without a painting of the last ByScreen, in seconds; 0 if it isn't looked at.
    double LongestGap() const { return m_longestGap; }

protected:
    // Opens a screen, plays on it, and leaves it by Esc.
    static void Play(const char* screen, const std::function<void(Clerk&)>& script);

    // Types keys, or does something else, and returns the seconds until the program is at rest, noting the
    // longest gap.
    double Timed(Clerk& clerk, const QString& keys);
    double Timed(Clerk& clerk, const std::function<void()>& act);

private:
    double m_longestGap = 0;
};

struct WorkCase {
    std::string name; // of the benchmark
    std::string what;
    int turns = 1;
    Target target;
    bool hasGaps = false; // whether it may last so long that it has to be seen going on
    bool hasYears = false; // whether it is also measured after ten years, when it may last 1.3 times as long
    std::function<std::unique_ptr<Work>()> make; // called while the books are open
};

// Registers a case, and its neighbour on the society of ten years.
void RegisterWork(const QString& drives, const WorkCase& which);
