#pragma once

#include "model/journal/journalcontents.h"

#include <QByteArray>
#include <QDataStream>

#include <utility>
#include <vector>

/// What a block may hold, one after the other. The numbers are part of the format.
enum class JournalRecord : quint8 {
    Base = 1,
    Samples = 2,
    Order = 3,
    Notes = 4,
    Settings = 5,
    Evaluation = 6,
    Colors = 7,
    Picture = 8,
    Time = 9,
};

/// Puts records together to one payload.
class JournalRecordWriter
{
public:
    JournalRecordWriter();

    void base(const JournalBase &base);
    /// The samples from `start` on, `count` of them.
    void samples(quint64 id, const SampleList &list, int start, int count);
    /// `removed` ids from `first` on are replaced.
    void order(int sensor, int first, int removed, const std::vector<quint64> &inserted);
    void notes(const std::vector<std::pair<quint64, ShotNotes>> &notes);
    void settings(const QByteArray &text) { bytes(JournalRecord::Settings, text); }
    void evaluation(const QByteArray &text) { bytes(JournalRecord::Evaluation, text); }
    void colors(const std::vector<QRgb> &colors);
    void picture(int index, const JournalPicture &picture);
    void time(const QDateTime &time);

    [[nodiscard]] int size() const { return m_payload.size(); }
    /// What was put together, and starts over.
    [[nodiscard]] QByteArray take();

private:
    void begin(JournalRecord record);
    void bytes(JournalRecord record, const QByteArray &text);

    QByteArray m_payload;
    QDataStream m_stream;
};

/// Applies the records of a payload to what is known so far; false as soon as one makes no sense, after which the
/// contents hold part of the payload. Throws std::bad_alloc.
[[nodiscard]] bool applyRecords(const QByteArray &payload, JournalContents &contents);
