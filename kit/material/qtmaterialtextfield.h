#pragma once

#include "kit/material/qtmaterialmotion.h"
#include "kit/material/qtmaterialtextfieldplaces.h"
#include "kit/material/qtmaterialtextfieldstatemachine.h"

#include <QLineEdit>

class QHelpEvent;

/// A line edit over an underline. Its label lies in the empty field and floats above it once the field is used; below
/// the line there is room for a helper text, an error and a counter. Can replace any QLineEdit: validators, input
/// masks, echo modes, the placeholder and so on work as they do there. Colours come from the current theme, that of an
/// error is QtMaterialPalette::red700(). The field sets its own style sheet for that; sheets of its ancestors may set
/// the font.
class QtMaterialTextField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString label READ label WRITE setLabel)
    Q_PROPERTY(QString helperText READ helperText WRITE setHelperText)
    Q_PROPERTY(QString errorText READ errorText WRITE setErrorText)
    Q_PROPERTY(bool counterShown READ isCounterShown WRITE setCounterShown)
    Q_PROPERTY(bool clearable READ isClearable WRITE setClearable)
    Q_PROPERTY(bool supportReserved READ isSupportReserved WRITE setSupportReserved)
    Q_PROPERTY(bool animating READ isAnimating)

public:
    explicit QtMaterialTextField(QWidget *parent = nullptr);
    explicit QtMaterialTextField(const QString &label, QWidget *parent = nullptr);

    /// Also the name for screen readers, unless another accessible name is set.
    [[nodiscard]] QString label() const { return m_label; }
    void setLabel(const QString &label);
    [[nodiscard]] QString helperText() const { return m_helperText; }
    void setHelperText(const QString &text);
    /// What is wrong with the text in the field; shown instead of the helper text and announced to screen readers. It
    /// stays until it is set to an empty text.
    [[nodiscard]] QString errorText() const { return m_errorText; }
    void setErrorText(const QString &text);
    /// How many characters there are, and how many there may be if a maximum length was set.
    [[nodiscard]] bool isCounterShown() const { return m_counterShown; }
    void setCounterShown(bool shown);
    /// A cross at the end of the line that empties the field.
    [[nodiscard]] bool isClearable() const { return m_clearable; }
    void setClearable(bool clearable);
    /// Whether the room below the line is kept while it is empty, so that an error does not move the layout.
    [[nodiscard]] bool isSupportReserved() const { return m_supportReserved; }
    void setSupportReserved(bool kept);
    [[nodiscard]] bool isAnimating() const { return m_motion.isRunning(); }
    /// The clickable area of the cross; empty while there is none.
    [[nodiscard]] QRect clearRect() const;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QtMaterialTextFieldPlaces places() const;
    [[nodiscard]] QString counterText() const;
    [[nodiscard]] QString supportText() const;
    [[nodiscard]] QColor accentColor() const;

    [[nodiscard]] bool showWholeSupport(const QHelpEvent &help);
    void fitRoom();
    void takeTheme();
    void showPlaceholder();
    void describe();
    void showState();

    void paintLabel(QPainter &painter) const;
    void paintLine(QPainter &painter) const;
    void paintSupport(QPainter &painter) const;
    void paintCross(QPainter &painter) const;

    QtMaterialTextFieldStateMachine m_state;
    QtMaterialMotion m_motion; ///< the label's way up, then the line's way out, both 0 to 1
    QString m_label;
    QString m_helperText;
    QString m_errorText;
    QString m_description; ///< the accessible description that this class set
    int m_ownMinimumHeight = 0;
    bool m_counterShown = false;
    bool m_clearable = false;
    bool m_supportReserved = false;
    bool m_clearPressed = false;
};
