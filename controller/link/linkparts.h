#pragma once

#include "controller/desk.h"
#include "controller/link/answerwatch.h"
#include "controller/link/boxmemory.h"
#include "controller/link/boxprobe.h"
#include "controller/link/continuation.h"
#include "controller/link/firmwareupdate.h"
#include "controller/link/linkclock.h"
#include "controller/link/linkreport.h"
#include "controller/link/shotwatch.h"
#include "controller/link/silencewatch.h"

class BoxDescriptions;
class BoxLink;
class DemoBox;
class DemoLink;
class LineQueue;
class MesotraConnector;
class Recorder;
class SamplingPeriod;
struct ControllerOptions;

/// The parts that watch over the link or interrupt it, and the connections between them and those that carry it.
struct LinkParts
{
    /// What carries the link; all must outlive the parts.
    struct Carriers
    {
        MesotraConnector &connector;
        const DemoBox &demoBox;
        const LineQueue &lines;
        Recorder &recorder;
        BoxLink &link;
        const DemoLink &demo;
        BoxDescriptions &descriptions;
        SamplingPeriod &period;
    };

    LinkParts(const Desk &desk, const Carriers &carriers, const ControllerOptions &options);

    /// A line of the box, before and after it is handled. Cheap enough for every line.
    void beforeLine(const QString &line);
    void afterLine(const QString &line);
    /// The link ends, and the last line that came over it has been handled.
    void endWithLink();

    LinkClock clock;
    SilenceWatch silence;
    AnswerWatch answers;
    ShotWatch shot;
    Continuation continuation;
    BoxMemory memory;
    BoxProbe probe;
    LinkReport report;
    FirmwareUpdate firmware;

private:
    void watchLink();
    void watchBox(View &view);
    void noteSent(const QString &text);

    Carriers m_carriers;
};
