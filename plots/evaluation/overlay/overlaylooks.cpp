#include "plots/evaluation/overlay/overlaylooks.h"

#include "plots/evaluation/overlay/colordelegate.h"

#include <algorithm>

bool OverlayLooks::setShots(Keys keys)
{
    const bool hasMoved = std::mismatch(m_keys.begin(), m_keys.end(), keys.begin(), keys.end()).first != m_keys.end();
    m_keys = std::move(keys);
    if (hasMoved)
        forgetRemoved();
    return hasMoved;
}

void OverlayLooks::clear()
{
    m_looks.clear();
    m_reference = 0;
}

void OverlayLooks::forgetRemoved()
{
    QHash<quint64, Look> looks;
    for (const quint64 key : m_keys) {
        const auto look = m_looks.constFind(key);
        if (look != m_looks.constEnd())
            looks.insert(key, *look);
    }
    m_looks = looks;
    if (reference() < 0)
        m_reference = 0;
}

void OverlayLooks::setHidden(int shot, bool hidden)
{
    m_looks[keyOf(shot)].isHidden = hidden;
}

QColor OverlayLooks::color(int shot) const
{
    const QColor chosen = lookOf(shot).color;
    return chosen.isValid() ? chosen : ColorDelegate::colorAt(shot);
}

void OverlayLooks::setColor(int shot, const QColor &color)
{
    m_looks[keyOf(shot)].color = color;
}

int OverlayLooks::reference() const
{
    const auto found = std::find(m_keys.begin(), m_keys.end(), m_reference);
    return m_reference == 0 || found == m_keys.end() ? -1 : static_cast<int>(found - m_keys.begin());
}

void OverlayLooks::setReference(int shot)
{
    const bool exists = shot >= 0 && static_cast<std::size_t>(shot) < m_keys.size();
    m_reference = exists ? keyOf(shot) : 0;
}
