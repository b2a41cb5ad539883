#pragma once

#include "platform/database/Disk.h"

#include <QStringList>

// A disk that writes down what is done to it, and fails or ends the process where it is told to. It is in use
// as long as it lives.
class TestDisk final : public Disk {
public:
    // The exit code of a process that a power cut ends.
    static constexpr int PowerCut = 77;

    TestDisk();
    ~TestDisk() override;

    int CutAt = 0; // the change, counted from 1, in whose place the process ends
    int FailAt = 0; // the change that fails; those after it don't
    bool KnowsSecondNames = true;

    // "sync books", "link PWD.TXT PWD-2026-04-01-101530.TXT": what was done, with the names of the files.
    const QStringList& Done() const { return m_done; }
    int Count() const { return static_cast<int>(m_done.size()); }

    std::error_code Sync(const QString& path) override;
    std::error_code Link(const QString& file, const QString& name) override;
    std::error_code Copy(const QString& file, const QString& name) override;
    std::error_code Move(const QString& from, const QString& to) override;
    std::error_code Remove(const QString& file) override;

private:
    std::error_code Next(const QStringList& words);

    QStringList m_done;
};
