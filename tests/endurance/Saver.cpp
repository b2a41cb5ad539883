// A program to be killed: opens the books and saves one numbered save after the other, folds them, closes and
// opens them again, until it is killed.
//
//   endurance_saver BOOKS SEED
//
// Each line of its output tells what it has done or does next: "found N" the saves that it has met with when
// it opened, "saved N" a save that it acknowledges, "saving", "folding", "closing" and "opening" what comes
// now, "fault" and "note" what must not be.

#include "platform/text/RunTimeError.h"
#include "tests/endurance/NumberedSaves.h"

#include <QRandomGenerator>

#include <cstdio>

namespace {

void Say(const std::string& line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

class Saver {
public:
    explicit Saver(QString file) : m_file(std::move(file)) { Open(); }

    void Act(int what)
    {
        if (what < 70) {
            Say("saving");
            NumberedSaves::Save(m_books, ++m_saves);
            Say("saved " + std::to_string(m_saves));
        } else if (what < 76) {
            NumberedSaves::GiveUp(m_books);
        } else if (what < 92) {
            Say("folding");
            m_books.Fold();
        } else {
            Say("closing");
            m_books.Close();
            Open();
        }
    }

private:
    void Open()
    {
        Say("opening");
        for (const QString& note : NumberedSaves::Open(m_books, m_file))
            Say("note " + note.toStdString());
        const NumberedSaves::Found found = NumberedSaves::Read(m_books);
        if (!found.fault.empty())
            Say("fault " + found.fault);
        Say("found " + std::to_string(found.saves));
        m_saves = found.saves;
    }

    QString m_file;
    Connection m_books;
    int m_saves = 0;
};

}

int main(int argc, char* argv[])
{
    if (argc != 3)
        return 2;
    try {
        QRandomGenerator dice(QByteArray(argv[2]).toUInt());
        Saver saver(QString::fromLocal8Bit(argv[1]));
        for (;;)
            saver.Act(dice.bounded(100));
    } catch (const RunTimeError& error) {
        Say(std::string("fault ") + error.what());
        return 1;
    }
}
