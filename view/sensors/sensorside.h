#pragma once

#include <QWidget>

class QAction;
class QKeyEvent;
class QModelIndex;
class QPushButton;
class QTreeView;
class SensorTreeModel;

/// The side of the tab "Sensoren": the tree of all sensors with its keys and context menu, and the buttons below it. It
/// only changes which sensors are checked; everything else is emitted as a signal.
class SensorSide : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kNarrowest = 240; ///< pixels beside the tiles

    explicit SensorSide(QWidget *parent = nullptr);

    /// What the tree shows; owned by the side.
    [[nodiscard]] SensorTreeModel &sensors() { return *m_sensors; }

signals:
    void editRequested(int sensor);
    void resetRequested(int sensor);
    void resetAllRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createTree();
    void sizeColumns();
    void createActions();
    void createButtons();
    void layOut();
    void fitColumns();
    void showEditable();
    void retranslateUi();
    [[nodiscard]] int currentSensor() const;
    [[nodiscard]] bool handleTreeKey(const QKeyEvent &event);
    void toggleCheck(const QModelIndex &name);
    void renameInPlace();
    void requestEdit();

    SensorTreeModel *m_sensors;
    QTreeView *m_tree = nullptr;
    int m_valueWidth = 0; ///< pixels of the tree's columns, where there is room for them
    int m_unitWidth = 0;
    QPushButton *m_editButton = nullptr;
    QPushButton *m_resetButton = nullptr;
    QAction *m_renameAction = nullptr;
    QAction *m_editAction = nullptr;
    QAction *m_resetAction = nullptr;
};
