#include "controller/link/boxmemory.h"

#include "device/demobox.h"
#include "device/mesotraconnector.h"
#include "device/protocol/sampleline.h"
#include "model/model.h"
#include "view/home/tabhome.h"
#include "view/window/view.h"

#include <QStringList>

namespace {

/// The names of its groups and its hardware; empty if it says nothing.
QString descriptionText(const DeviceDescription &description, const QString &hardware)
{
    QStringList parts;
    for (const DeviceDescription::Group &group : description.groups)
        parts << group.name.simplified();
    parts << hardware.simplified();
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

/// True for what only a box says. The greeting of a mail server begins with a digit too.
bool isOfBox(MessageKind kind, const QString &line)
{
    return kind == MessageKind::Sample ? parseSampleLine(line, 1.0).has_value() : kind != MessageKind::Other;
}

} // namespace

BoxMemory::BoxMemory(View &view, const Model &model, const MesotraConnector &connector, const DemoBox &demoBox)
    : m_view(view)
    , m_model(model)
    , m_connector(connector)
    , m_demoBox(demoBox)
{}

bool BoxMemory::judge(MessageKind kind, const QString &line)
{
    if (!isOfBox(kind, line))
        return false;
    m_isProven = true;
    if (!m_demoBox.isActive() && m_connector.isConnected())
        m_view.rememberAddress(m_connector.hostAddress());
    return true;
}

void BoxMemory::noteDescribed()
{
    if (m_demoBox.isActive() || !m_isProven)
        return;
    const QString text = descriptionText(m_model.deviceDescription(), m_model.hardwareVersion());
    if (!text.isEmpty())
        m_view.tabHome()->describeBox(m_connector.hostAddress(), text);
}
