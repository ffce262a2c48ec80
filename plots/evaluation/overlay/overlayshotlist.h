#pragma once

#include "kit/small/translatedwidget.h"
#include "plots/evaluation/overlay/alignment.h"

class OverlayTable;
class QLabel;
class QPushButton;

/// The left side of the overlay page: the table of the shots, a line that says how many are drawn, and the buttons that
/// act on them.
class OverlayShotList final : public TranslatedWidget
{
    Q_OBJECT

public:
    struct Status
    {
        int count = 0;    ///< shots in the table
        int shown = 0;    ///< that are drawn
        int unplaced = 0; ///< that are ticked, but lack what the shots are lined up by
        AlignBy by = AlignBy::Start;
        bool hasCurrent = false;         ///< a row of the table is current
        bool isReferenceCurrent = false; ///< and it is the reference
    };

    /// Makes the table its child.
    explicit OverlayShotList(OverlayTable *table, QWidget *parent = nullptr);

    void showStatus(const Status &status);

signals:
    /// The user wants all shots drawn, or none.
    void allWanted(bool shown);
    /// The user wants the current shot to become the reference, or to be it no longer.
    void referenceWanted();

protected:
    void retranslateUi() override;

private:
    [[nodiscard]] QString unplacedText() const;

    Status m_shown;
    QLabel *m_status = nullptr;
    QPushButton *m_all = nullptr;
    QPushButton *m_none = nullptr;
    QPushButton *m_reference = nullptr;
};
