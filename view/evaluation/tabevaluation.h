#pragma once

#include <QWidget>

#include <array>

class Dashboard;
class EvaluationData;
class Model;
class QAbstractButton;
class QStackedWidget;
class TabEvaluationOverlay;
class TabEvaluationRuntime;
class TabEvaluationValues;

/// The tab "Auswertung": a row of buttons and the page that the chosen one opens. The pages follow the model by
/// themselves; the tab copies the thresholds between the runtime page and the project.
class TabEvaluation : public QWidget
{
    Q_OBJECT

public:
    enum class Page { Dashboard, Values, Runtime, Overlay };
    static constexpr int kNumPages = 4;

    explicit TabEvaluation(QWidget *parent = nullptr);

    /// Not owned; nullptr changes nothing.
    void setModel(Model *model);
    [[nodiscard]] Page currentPage() const;
    /// A page that does not exist is ignored.
    void showPage(Page page);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void onModel_projectChanged();
    void onRuntimePage_thresholdsChanged();

private:
    void createButtons();
    void createPages();
    void addPage(Page page, QWidget *widget);
    void retranslateUi();
    [[nodiscard]] QAbstractButton *button(Page page) const { return m_buttons[static_cast<std::size_t>(page)]; }

    Model *m_model = nullptr;
    std::array<QAbstractButton *, kNumPages> m_buttons{};
    std::array<QWidget *, kNumPages> m_pages{}; // nullptr: not there, its button is hidden
    QStackedWidget *m_stack = nullptr;
    EvaluationData *m_data = nullptr;
    Dashboard *m_dashboard = nullptr;
    TabEvaluationValues *m_valuesPage = nullptr;
    TabEvaluationRuntime *m_runtimePage = nullptr;
    TabEvaluationOverlay *m_overlayPage = nullptr;
};
