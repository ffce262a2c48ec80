#pragma once

#include <QColor>
#include <QHash>

#include <vector>

/// What the user chose for the shots of an overlay: colours, ticks and the reference. A choice belongs to its shot,
/// whatever row the shot moves to, and is forgotten when the shot is removed.
class OverlayLooks
{
public:
    using Keys = std::vector<quint64>;

    /// The shots that exist now, each known by a number other than 0 that no other shot has. Returns true if shots were
    /// removed or have changed their order.
    [[nodiscard]] bool setShots(Keys keys);
    /// Forgets all choices.
    void clear();

    /// All of these need a shot that exists.
    [[nodiscard]] bool isHidden(int shot) const { return lookOf(shot).isHidden; }
    void setHidden(int shot, bool hidden);
    /// The colour that was chosen, or the one that belongs to its number.
    [[nodiscard]] QColor color(int shot) const;
    void setColor(int shot, const QColor &color);

    /// The shot that the others are compared with; -1 if there is none.
    [[nodiscard]] int reference() const;
    /// -1, or a shot that does not exist: none.
    void setReference(int shot);

private:
    struct Look
    {
        QColor color; // invalid: not chosen
        bool isHidden = false;
    };

    [[nodiscard]] quint64 keyOf(int shot) const { return m_keys[static_cast<std::size_t>(shot)]; }
    [[nodiscard]] Look lookOf(int shot) const { return m_looks.value(keyOf(shot)); }
    void forgetRemoved();

    Keys m_keys;
    QHash<quint64, Look> m_looks;
    quint64 m_reference = 0; // a key; 0: none
};
