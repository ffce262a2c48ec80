#pragma once

#include "model/journal/journalblock.h"
#include "model/journal/journalreader.h"
#include "model/journal/journaltracker.h"
#include "model/model.h"

#include <QBuffer>
#include <QFileInfo>

/// Keeps a journal of a model in memory, as the program does in a file.
class JournalRig
{
public:
    explicit JournalRig(const Model &model)
        : m_model(model)
    {
        begin();
    }

    /// Against what the model's file holds now.
    void begin()
    {
        JournalBase base;
        base.file = m_model.currentFile();
        const QFileInfo file(base.file);
        base.fileSize = file.size();
        base.fileTime = file.lastModified().toMSecsSinceEpoch();
        base.started = QDateTime::currentDateTime();
        m_tracker.begin(base, m_model.files().saved());
        bytes = journalblock::mark();
    }

    [[nodiscard]] JournalDelta changes() const
    {
        return m_tracker.changes(m_model.project(), m_model.changeCount(), QDateTime::currentDateTime());
    }

    /// Bytes that were written.
    int write()
    {
        JournalDelta delta = changes();
        const int before = bytes.size();
        for (const QByteArray &block : delta.blocks)
            bytes += block;
        m_tracker.commit(std::move(delta));
        return bytes.size() - before;
    }

    [[nodiscard]] std::optional<JournalContents> read() const { return readFrom(bytes); }

    [[nodiscard]] static std::optional<JournalContents> readFrom(QByteArray from)
    {
        QBuffer buffer(&from);
        return buffer.open(QIODevice::ReadOnly) ? readJournal(buffer) : std::nullopt;
    }

    QByteArray bytes;

private:
    const Model &m_model;
    JournalTracker m_tracker;
};
