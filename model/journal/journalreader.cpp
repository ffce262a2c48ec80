#include "model/journal/journalreader.h"

#include "model/journal/journalblock.h"
#include "model/journal/journalrecords.h"

#include <QIODevice>

#include <new>

namespace {

bool beginsWithBase(const QByteArray &payload)
{
    return !payload.isEmpty() && payload.at(0) == char(JournalRecord::Base);
}

} // namespace

std::optional<JournalContents> readJournal(QIODevice &source, const std::function<void()> &pause)
{
    try {
        JournalContents contents;
        std::optional<QByteArray> payload;
        if (journalblock::readMark(source))
            payload = journalblock::read(source);
        if (!payload || !beginsWithBase(*payload) || !applyRecords(*payload, contents))
            return {};
        while ((payload = journalblock::read(source))) {
            pause();
            // A second base, or records that make no sense behind a right check number: not written by this program.
            if (beginsWithBase(*payload) || !applyRecords(*payload, contents))
                return contents;
        }
        return contents;
    } catch (const std::bad_alloc &) {
        return {};
    }
}
