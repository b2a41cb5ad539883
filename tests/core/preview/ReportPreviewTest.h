#pragma once

#include "core/preview/ReportHandover.h"
#include "tests/support/FakePrinter.h"
#include "tests/support/SocietyTest.h"

// Reports over staged deliveries, shown in the preview.
class ReportPreviewTest : public SocietyTest {
protected:
    ReportPreviewTest();

    // Stages so many deliveries, numbered from 1, of members named by `name`.
    void AddDeliveries(int count, const std::function<QString(int)>& name);

    // A page for each delivery, with its number, its member and its litres.
    void WritePagesTemplate();

    // A table of the deliveries, about sixty a page.
    void WriteTableTemplate();

    void WriteTemplate(const QString& text);

    // The control of a screen that prints the template.
    ReportControl Control() const;

    // Prints the template into the window and plays on it.
    void Show(const std::function<void(Clerk&)>& script);

    // What the head of the preview says: "2 / 5".
    static QString Pages(Clerk& clerk);
    static QString Zoom(Clerk& clerk);
    static QString State(Clerk& clerk);

    // Goes on until the last page is laid out.
    static void WaitForLastPage(Clerk& clerk);

    // Asks for a file with a key, and types a name and the test's own folder.
    void SaveAs(Clerk& clerk, const QString& key, const QString& name);
    QString Saved(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    FakePrinter* m_printer; // belongs to the handover
    std::optional<ReportHandover> m_handover;
};
