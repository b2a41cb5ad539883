#pragma once

#include <QWidget>

// A sheet that flies from one folder into another, as long as a copy is made. It keeps its room while it is
// hidden.
class CopyAnimation final : public QWidget {
public:
    explicit CopyAnimation(const char* name);

    // Shows it; the sheet lies in the first folder.
    void Play();

    // The sheet flies a little further, and begins anew when it has arrived.
    void Step();

    // Hides it.
    void Stop();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_step = 0;
};
