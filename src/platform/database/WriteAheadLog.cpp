#include "platform/database/WriteAheadLog.h"

#include "platform/database/BooksOnDisk.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr quint32 Magic = 0x377f0682; // the lowest bit tells the byte order of the checksums
constexpr int HeadSize = 32;
constexpr int FrameHeadSize = 24;
constexpr int SaltsAt = 16; // in the head of the log
constexpr int SaltsSize = 8;

struct Checksum {
    quint32 first = 0;
    quint32 second = 0;

    void Add(const char* bytes, int count, bool bigEndian)
    {
        for (int i = 0; i < count; i += 8) {
            first += Word(bytes + i, bigEndian) + second;
            second += Word(bytes + i + 4, bigEndian) + first;
        }
    }

    static quint32 Word(const char* bytes, bool bigEndian)
    {
        return bigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
    }

    bool IsAt(const char* bytes) const
    {
        return first == qFromBigEndian<quint32>(bytes) && second == qFromBigEndian<quint32>(bytes + 4);
    }
};

// A page in the log, with the header in front of it.
struct Frame {
    QByteArray bytes;

    quint32 Page() const { return qFromBigEndian<quint32>(bytes.constData()); }
    quint32 DatabasePages() const { return qFromBigEndian<quint32>(bytes.constData() + 4); }
    bool IsCommit() const { return DatabasePages() != 0; }
    QByteArray Salts() const { return bytes.mid(8, SaltsSize); }
    const char* Sums() const { return bytes.constData() + 16; }
    const char* Content() const { return bytes.constData() + FrameHeadSize; }
};

// Reads the frames of a log one by one, up to the last complete one.
class LogReader {
public:
    LogReader(const QString& file, int pageSize) : m_file(file), m_pageSize(pageSize)
    {
        if (m_file.open(QIODevice::ReadOnly))
            m_head = m_file.read(HeadSize);
    }

    bool IsThere() const { return m_file.isOpen(); }

    // Whether the header of the log is valid. To be called before Continues.
    bool HasSoundHead()
    {
        if (m_head.size() != HeadSize || (Word(0) & ~1U) != Magic
            || Word(8) != static_cast<quint32>(m_pageSize))
            return false;
        m_bigEndian = (Word(0) & 1U) != 0;
        m_sum.Add(m_head.constData(), HeadSize - SaltsSize, m_bigEndian);
        m_salts = m_head.mid(SaltsAt, SaltsSize);
        return m_sum.IsAt(m_head.constData() + HeadSize - SaltsSize);
    }

    const QByteArray& Salts() const { return m_salts; }

    // The position in the log where the content of the last frame begins.
    qint64 ContentAt() const { return m_file.pos() - m_pageSize; }

    bool ReadNext(Frame& frame)
    {
        frame.bytes = m_file.read(FrameHeadSize + m_pageSize);
        return frame.bytes.size() == FrameHeadSize + m_pageSize;
    }

    // Whether a frame belongs to this round of the log and is undamaged, as all frames before it.
    bool Continues(const Frame& frame)
    {
        if (frame.Salts() != m_salts)
            return false;
        m_sum.Add(frame.bytes.constData(), 8, m_bigEndian);
        m_sum.Add(frame.Content(), m_pageSize, m_bigEndian);
        return m_sum.IsAt(frame.Sums());
    }

private:
    quint32 Word(int at) const { return qFromBigEndian<quint32>(m_head.constData() + at); }

    QFile m_file;
    int m_pageSize;
    QByteArray m_head;
    QByteArray m_salts;
    bool m_bigEndian = false;
    Checksum m_sum;
};

// Counts the commits from a frame to the end of the log. `isWithin` says whether the frame is in the midst of
// a commit. Only frames with the same salts count, the others are left over from an older round; with empty
// salts those of the first frame are taken. A commit of the first page only isn't counted: it contains no
// entry, just the note that a fold has begun.
int CommitsFrom(LogReader& reader, Frame frame, QByteArray salts, bool isWithin)
{
    int commits = 0;
    do {
        if (salts.isEmpty())
            salts = frame.Salts();
        if (frame.Salts() != salts)
            continue;
        if (frame.IsCommit() && (frame.Page() != 1 || isWithin))
            ++commits;
        isWithin = !frame.IsCommit();
    } while (reader.ReadNext(frame));
    return commits;
}

// How many committed frames the log has according to the engine's index. After a killed program this number
// is exact, after a power cut it may be older than the log. 0 if the index belongs to another log or is half
// written.
quint32 FramesByIndex(const QString& databaseFile, const QByteArray& salts)
{
    constexpr qint64 copySize = 48; // the index begins with two copies; they differ while it is being written
    constexpr int framesAt = 16;
    constexpr int saltsAt = 32;
    QFile file(WriteAheadLog::IndexNameFor(databaseFile));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray copies = file.read(2 * copySize);
    if (copies.size() != 2 * copySize || copies.left(copySize) != copies.right(copySize)
        || copies.mid(saltsAt, SaltsSize) != salts)
        return 0;
    quint32 frames = 0;
    memcpy(&frames, copies.constData() + framesAt, sizeof frames);
    return frames;
}

// Estimates how many commits the missing frames were, from the average length of those that are left.
int CommitsIn(quint32 missingFrames, quint32 frames, int commits)
{
    const quint32 usual = commits > 0 ? qMax(1U, frames / static_cast<quint32>(commits)) : 1U;
    return static_cast<int>((missingFrames + usual - 1) / usual);
}

}

WriteAheadLog WriteAheadLog::Read(const QString& databaseFile, int pageSize)
{
    Q_ASSERT(!BooksOnDisk::AreOpen(databaseFile));
    WriteAheadLog log;
    LogReader reader(NameFor(databaseFile), pageSize);
    log.isThere = reader.IsThere();
    Frame frame;
    if (!reader.HasSoundHead()) {
        if (log.isThere && reader.ReadNext(frame))
            log.lostCommits = CommitsFrom(reader, frame, {}, false);
        return log;
    }

    QHash<quint32, qint64> pages;
    QByteArray firstPage;
    quint32 frames = 0;
    quint32 committedFrames = 0;
    int commits = 0;
    while (reader.ReadNext(frame)) {
        if (!reader.Continues(frame)) {
            log.lostCommits = CommitsFrom(reader, frame, reader.Salts(), frames > committedFrames);
            break;
        }
        ++frames;
        pages.insert(frame.Page(), reader.ContentAt());
        if (frame.Page() == 1)
            firstPage = frame.bytes.mid(FrameHeadSize);
        if (!frame.IsCommit())
            continue;
        log.databasePages = frame.DatabasePages();
        log.pages = pages;
        log.firstPage = firstPage;
        committedFrames = frames;
        ++commits;
    }
    const quint32 known = FramesByIndex(databaseFile, reader.Salts());
    if (log.lostCommits == 0 && known > committedFrames)
        log.lostCommits = CommitsIn(known - committedFrames, committedFrames, commits);
    return log;
}

// Each time a page is written it is encrypted differently, so equal bytes come from the same write.
bool WriteAheadLog::IsPartlyFolded(const QString& databaseFile, int pageSize) const
{
    QFile log(NameFor(databaseFile));
    QFile file(databaseFile);
    if (!log.open(QIODevice::ReadOnly) || !file.open(QIODevice::ReadOnly))
        return false;
    return std::any_of(pages.keyValueBegin(), pages.keyValueEnd(), [&](const auto& page) {
        const auto [number, at] = page;
        if (!log.seek(at) || !file.seek(qint64(number - 1) * pageSize))
            return false;
        const QByteArray content = log.read(pageSize);
        return content.size() == pageSize && content == file.read(pageSize);
    });
}
