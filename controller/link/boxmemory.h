#pragma once

#include "device/protocol/messages.h"

#include <QString>

class DemoBox;
class MesotraConnector;
class Model;
class View;

/// Has the address of a box remembered, with its description, once it has behaved like a box. Whatever else may listen
/// under an address is not worth offering again.
class BoxMemory
{
public:
    /// All must outlive the memory.
    BoxMemory(View &view, const Model &model, const MesotraConnector &connector, const DemoBox &demoBox);

    /// There is a new link.
    void reset() { m_isProven = false; }
    /// A line that came over it; true for the first one that only a box says. Cheap enough for every line.
    [[nodiscard]] bool noteLine(MessageKind kind, const QString &line) { return !m_isProven && judge(kind, line); }
    /// The model holds what the box says about itself.
    void noteDescribed();

private:
    [[nodiscard]] bool judge(MessageKind kind, const QString &line);

    View &m_view;
    const Model &m_model;
    const MesotraConnector &m_connector;
    const DemoBox &m_demoBox;
    bool m_isProven = false;
};
