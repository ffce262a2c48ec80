#pragma once

#include "model/journal/savedshots.h"
#include "model/journal/shotnotes.h"
#include "model/project/projectmeta.h"
#include "model/samplelist.h"
#include "model/sensordescription.h"

#include <QByteArray>
#include <QDateTime>
#include <QRgb>
#include <QString>

#include <array>
#include <unordered_map>
#include <vector>

/// The project that a journal begins with: a file, or an empty project.
struct JournalBase
{
    QString programVersion;
    QDateTime started;
    QString file;        ///< absolute; empty for a project that has none
    qint64 fileSize = 0; ///< bytes
    qint64 fileTime = 0; ///< of its last change, ms since the epoch
    ShotChecks checks;   ///< of the shots in the file
    std::array<std::vector<SavedRun>, kNumSensors> runs;
    std::array<bool, 5> hasPicture{}; ///< which pictures the file has
};

/// Samples that the base file does not hold.
struct JournalSamples
{
    int start = 0; ///< index of the first one in its measurement
    SampleList samples;
};

/// One picture of the project.
struct JournalPicture
{
    enum class Kind : quint8 { InBase, None, Png };

    Kind kind = Kind::InBase;
    QByteArray png; ///< for Kind::Png
};

/// What a journal says about a project: its state at the last complete block.
struct JournalContents
{
    JournalBase base;
    QDateTime lastWritten;
    std::array<std::vector<quint64>, kNumSensors> order; ///< the ids of the measurements
    std::unordered_map<quint64, JournalSamples> samples; ///< by id; may hold some that were deleted later
    std::unordered_map<quint64, ShotNotes> notes;        ///< by the id that shotId() names
    QByteArray settings;                                 ///< the project document without samples and pictures
    QByteArray evaluation;                               ///< the text of the file beside the project, without shots
    std::vector<QRgb> colors;                            ///< of the curves; empty or one per sensor
    std::array<JournalPicture, 5> pictures;

    [[nodiscard]] int shotCount() const;
    /// The number that stands for all measurements of a shot: that of the first sensor which has it.
    [[nodiscard]] quint64 shotId(int shot) const;
    /// Of all five sensors, those of the base file included.
    [[nodiscard]] qint64 sampleCount() const;
    /// From the settings; empty if there is none.
    [[nodiscard]] QString projectName() const;
};
