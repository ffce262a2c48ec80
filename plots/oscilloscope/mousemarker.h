#pragma once

class QLabel;
class QWidget;
struct OsziScene;

/// The red hair line at the pointer and the value of the highlighted curve beside it. Two child widgets of the plot,
/// so that following the pointer repaints nothing but what they cover.
class MouseMarker
{
public:
    /// Creates both labels, hidden, as children of the plot, which owns them and must outlive this object.
    explicit MouseMarker(QWidget *plot);

    /// Shows the sample of the highlighted curve at a column. False, and nothing changes, when there is none.
    [[nodiscard]] bool show(const OsziScene &scene, int x);
    void hide();

private:
    QLabel *m_hairLine;
    QLabel *m_readOut;
};
