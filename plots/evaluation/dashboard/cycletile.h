#pragma once

#include <QAbstractButton>
#include <QDateTime>

#include <optional>

/// The tile of the dashboard that tells of the shots as such: how many there are and how long a cycle takes.
class CycleTile : public QAbstractButton
{
    Q_OBJECT

public:
    struct Content
    {
        int shots = 0;
        std::optional<double> latestCycle; ///< seconds; none without a shot
        std::optional<double> meanCycle;   ///< seconds
        int cyclesInMean = 0;
        QDateTime latestTimestamp; ///< of the newest shot; may be invalid
    };

    explicit CycleTile(QWidget *parent = nullptr);

    void set(const Content &content);
    [[nodiscard]] const Content &content() const { return m_content; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void describe();

    Content m_content;
};
