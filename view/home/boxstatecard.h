#pragma once

#include <QWidget>

#include <array>

class Model;
class QGridLayout;
class QHBoxLayout;
class QLabel;

/// What the window knows of the link beyond the model.
struct LinkState
{
    QString address; ///< of the box that is or would be connected
    bool isConnecting = false;
    bool isRecording = false;
    bool isDemo = false; ///< the box is the simulator
};

/// The state of the box: the link at a glance, then what the box and the measurements are.
class BoxStateCard : public QWidget
{
    Q_OBJECT

public:
    explicit BoxStateCard(QWidget *parent = nullptr);

    /// Shows the state as it is now. Cheap enough for every update of the start page.
    void showState(const Model &model, const LinkState &link);
    /// Whether the values are below their names instead of beside them.
    void setStacked(bool stacked);

private:
    enum Fact { Address, Device, Name, Hardware, Firmware, Period, Sensors, Shots, NumFacts };
    using Texts = std::array<QString, NumFacts>;

    [[nodiscard]] QHBoxLayout *createHead();
    void createFact(int index);
    void placeFacts(bool stacked);
    void showLink(bool connected, const LinkState &link);
    void showFacts(const Texts &values);
    [[nodiscard]] static Texts factTexts(const Model &model, const LinkState &link);
    [[nodiscard]] static Texts factNames();

    QGridLayout *m_grid = nullptr;
    QLabel *m_dot = nullptr;
    QLabel *m_state = nullptr;
    QLabel *m_demo = nullptr;
    std::array<QLabel *, NumFacts> m_names{};
    std::array<QLabel *, NumFacts> m_values{};
};
