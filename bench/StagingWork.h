#pragma once

#include "bench/Traces.h"
#include "bench/Work.h"

// The staging of a report on its screen, until it would be laid out, and by prepared statements.
class StagingWork : public Work {
public:
    double ByScreen() override;
    double ByFloor() override;

protected:
    // `keys` leads to the button of the screen in this mode, and `print` presses it.
    StagingWork(const char* screen, const QString& mode, const QString& keys,
        const QString& print = QStringLiteral("%i"));

    virtual void StageByFloor() = 0;
    virtual Traces ReadTraces() const = 0;

private:
    const char* m_screen;
    QString m_mode;
    QString m_keys;
    QString m_print;
    Traces m_traces;
};
