#pragma once

#include "kit/small/holdrepeat.h"
#include "kit/small/stepboxlook.h"

#include <QWidget>

class StepBoxEditor;

/// A whole number between two big arrow buttons, for stepping through a list: "◀ 12 / 345 ▶". Steps with the mouse (a
/// button held down repeats, later page by page), with the wheel while it has the focus, and with the keys: arrows,
/// page up and down, Home, End. A click on the number or a digit key opens a field to type in; Enter takes the number,
/// Escape drops it. In a right-to-left layout the box is mirrored.
class LeftRightStepBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int minimum READ minimum)
    Q_PROPERTY(int maximum READ maximum)

public:
    explicit LeftRightStepBox(QWidget *parent = nullptr);

    /// The minimum while the range is empty.
    [[nodiscard]] int value() const { return m_value; }
    [[nodiscard]] int minimum() const { return m_minimum; }
    [[nodiscard]] int maximum() const { return m_maximum; }
    /// Both ends are included. With a maximum below the minimum there is nothing to choose from: the box shows a dash
    /// and looks disabled. A value outside the new range is clamped to it.
    void setRange(int minimum, int maximum);
    [[nodiscard]] bool isEmpty() const { return m_maximum < m_minimum; }

    [[nodiscard]] int singleStep() const { return m_singleStep; }
    /// Steps below 1 count as 1.
    void setSingleStep(int step);
    void setPageStep(int step);

    /// Texts directly before and after the number; they include the blanks that separate them.
    void setPrefix(const QString &prefix);
    void setSuffix(const QString &suffix);
    /// Shows the maximum behind the number: "12 / 345".
    void setTotalShown(bool shown);

    /// The text between the arrows.
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isEditing() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

public slots:
    /// Clamped to the range.
    void setValue(int value);
    /// By this many single steps up, or down if negative; stops at the ends of the range.
    void stepBy(int steps);

signals:
    /// Emitted once for every change, by the user or by the program.
    void valueChanged(int value);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] StepBoxLook look() const;
    [[nodiscard]] StepBoxLook::Arrow arrowLook(StepBoxPart part) const;
    [[nodiscard]] QSize textSize() const;
    [[nodiscard]] bool canStep(StepBoxPart part) const;
    void goTo(qint64 value);
    [[nodiscard]] bool stepByKey(int key);
    void stepPressed(int amount);
    void release();
    void setHovered(StepBoxPart part);
    void startEditing(const QString &text);
    void placeEditor();
    void contentsChanged();

    int m_value = 0;
    int m_minimum = 0;
    int m_maximum = 99;
    int m_singleStep = 1;
    int m_pageStep = 10;
    StepBoxText m_text;
    StepBoxEditor *m_editor;
    HoldRepeat m_repeat;
    int m_wheelRest = 0; ///< eighths of a degree that do not add up to a step yet
    StepBoxPart m_pressed = StepBoxPart::None;
    StepBoxPart m_hovered = StepBoxPart::None;
};
