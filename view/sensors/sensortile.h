#pragma once

#include "kit/small/shadowframe.h"
#include "view/sensors/sensorchoices.h"
#include "view/sensors/sensordisplay.h"
#include "view/sensors/sensorlist.h"

#include <array>

class QAction;
class QLabel;
class QMenu;
class QToolButton;
class QVBoxLayout;

/// A card with the display of one sensor: its name, buttons for the kind of display, for the held values and for the
/// enlarged view, and the display itself. Keys while it has the focus: 1 to 4 choose the kind, Return enlarges, Delete
/// forgets the held values.
class SensorTile : public ShadowFrame
{
    Q_OBJECT

public:
    explicit SensorTile(QWidget *parent = nullptr);

    void setSensor(const SensorInfo &sensor);
    [[nodiscard]] const SensorInfo &sensor() const { return m_sensor; }
    void setKind(DisplayKind kind);
    [[nodiscard]] DisplayKind kind() const { return m_kind; }
    void setReading(const SensorReading &reading);
    [[nodiscard]] SensorDisplay *display() const { return m_display; }
    /// Changes the button, its tool tip and the size of the name; the owner of the tile gives it the room.
    void setEnlarged(bool enlarged);
    /// Updates the text for screen readers; separate from setReading() because nobody can listen to 20 values per
    /// second.
    void describeReading();
    /// The tile and its buttons, in the order of the Tab key.
    [[nodiscard]] QVector<QWidget *> tabOrder();

signals:
    void kindChosen(DisplayKind kind);
    void resetRequested();
    void enlargeToggled();
    /// The tile in this direction should get the focus.
    void focusMoved(int key);

protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] QToolButton *newButton(const char *name, const QString &icon);
    void createHead();
    void createKindMenu();
    void showKind();
    void showName();
    void retranslateUi();

    SensorInfo m_sensor;
    DisplayKind m_kind = DisplayKind::Round;
    bool m_enlarged = false;
    QLabel *m_name = nullptr;
    QToolButton *m_kindButton = nullptr;
    QToolButton *m_resetButton = nullptr;
    QToolButton *m_enlargeButton = nullptr;
    QMenu *m_kindMenu = nullptr;
    std::array<QAction *, kNumDisplayKinds> m_kindActions{};
    QVBoxLayout *m_layout = nullptr;
    SensorDisplay *m_display = nullptr;
};
