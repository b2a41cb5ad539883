#include "tests/endurance/PlayedSession.h"

#include "platform/database/Recordset.h"
#include "tests/endurance/NumberedSaves.h"

#include <gtest/gtest.h>

#include <sqlcipher/sqlite3.h>

namespace {

class Session {
public:
    Session(const QString& file, bool isAfterCut, QRandomGenerator& dice)
        : m_file(file)
        , m_mayBeTold(isAfterCut)
        , m_dice(dice)
        , m_hasLittleMemory(dice.bounded(2) == 0)
    {
        Open();
    }

    void Act()
    {
        const int what = m_dice.bounded(100);
        if (what < 62)
            Save();
        else if (what < 70)
            NumberedSaves::GiveUp(m_books);
        else if (what < 84)
            m_books.Fold();
        else if (what < 91)
            FoldBesideAReader();
        else if (what < 97)
            Reopen();
        else
            FoldTwiceWithNothingBetween();
    }

private:
    void Open()
    {
        const QStringList notes = NumberedSaves::Open(m_books, m_file);
        EXPECT_TRUE(m_mayBeTold || notes.isEmpty()) << notes.join(u' ').toStdString();
        m_mayBeTold = false;
        const NumberedSaves::Found found = NumberedSaves::Read(m_books);
        EXPECT_EQ(found.fault, "");
        m_saves = found.saves;
        RecordingDisk::SaveBegins(m_saves);
        RecordingDisk::SaveIsAcknowledged(m_saves);
        if (m_hasLittleMemory)
            sqlite3_exec(m_books.Handle(), "pragma cache_size=10", nullptr, nullptr, nullptr);
    }

    void Reopen()
    {
        m_books.Close();
        Open();
    }

    void Save()
    {
        RecordingDisk::SaveBegins(++m_saves);
        NumberedSaves::Save(m_books, m_saves);
        RecordingDisk::SaveIsAcknowledged(m_saves);
    }

    void FoldBesideAReader()
    {
        Connection reader;
        NumberedSaves::Open(reader, m_file);
        {
            const Recordset rows(reader, QStringLiteral("select * from Entries"));
            Save();
            m_books.Fold();
            Save();
            m_books.Fold();
        }
        Save();
    }

    void FoldTwiceWithNothingBetween()
    {
        Save();
        EXPECT_TRUE(m_books.Fold());
        EXPECT_TRUE(m_books.Fold());
    }

    QString m_file;
    bool m_mayBeTold;
    QRandomGenerator& m_dice;
    bool m_hasLittleMemory; // then the engine writes much of a large save into the log long before its end
    Connection m_books;
    int m_saves = 0;
};

}

DiskStory PlayedSession::Play(const QString& books, const Start& start, int actions, QRandomGenerator& dice)
{
    RecordingDisk::Begin(books, start.acknowledged, start.begun);
    {
        Session session(books, start.isAfterCut, dice);
        for (int action = 0; action < actions; ++action)
            session.Act();
    }
    return RecordingDisk::End();
}
