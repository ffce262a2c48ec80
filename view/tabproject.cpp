#include "view/tabproject.h"

#include "model/model.h"
#include "view/logging.h"
#include "view/projectform.h"
#include "view/tabstyle.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <array>

struct TabProject::Private
{
    Model *model = nullptr;
    QString comment;      // what the field was filled with
    QString commentShown; // the same as the field gives it back
    ProjectForm *form = nullptr;
    QPlainTextEdit *commentEdit = nullptr;
    std::array<QLineEdit *, Model::kNumPhases> phases{};
    std::array<QLabel *, Model::kNumPhases> phaseLabels{};
    QLabel *recordHeading = nullptr;
    QLabel *commentHeading = nullptr;
    QLabel *phaseHeading = nullptr;
    QPushButton *clear = nullptr;

    void createWidgets(QWidget *parent);
    [[nodiscard]] QVBoxLayout *leftColumn() const;
    [[nodiscard]] QVBoxLayout *rightColumn() const;
    void fillComment(const QString &text);
};

void TabProject::Private::createWidgets(QWidget *parent)
{
    form = new ProjectForm(parent);
    for (QLabel **heading : {&recordHeading, &commentHeading, &phaseHeading}) {
        *heading = new QLabel(parent);
        tabstyle::makeHeading(*heading);
    }
    for (std::size_t i = 0; i < phases.size(); ++i) {
        phases[i] = new QLineEdit(parent);
        phases[i]->setObjectName(QStringLiteral("lineEditPhase%1").arg(i + 1));
        phaseLabels[i] = new QLabel(parent);
        phaseLabels[i]->setBuddy(phases[i]);
    }
    commentEdit = new QPlainTextEdit(parent);
    commentEdit->setObjectName(QStringLiteral("textEditComment"));
    commentEdit->setTabChangesFocus(true);
    commentEdit->setMinimumHeight(120);
    clear = new QPushButton(parent);
    clear->setObjectName(QStringLiteral("buttonClearData"));
    tabstyle::makeLarge(clear, QStringLiteral("delete.png"));
}

QVBoxLayout *TabProject::Private::leftColumn() const
{
    auto *column = new QVBoxLayout;
    column->setSpacing(10);
    column->addWidget(recordHeading);
    column->addWidget(form);
    column->addStretch(1);
    return column;
}

QVBoxLayout *TabProject::Private::rightColumn() const
{
    auto *names = new QFormLayout;
    names->setVerticalSpacing(6);
    names->setHorizontalSpacing(16);
    for (std::size_t i = 0; i < phases.size(); ++i)
        names->addRow(phaseLabels[i], phases[i]);
    auto *column = new QVBoxLayout;
    column->setSpacing(10);
    column->addWidget(phaseHeading);
    column->addLayout(names);
    column->addWidget(commentHeading);
    column->addWidget(commentEdit, 1);
    column->addWidget(clear, 0, Qt::AlignLeft);
    return column;
}

void TabProject::Private::fillComment(const QString &text)
{
    const QSignalBlocker blocker(commentEdit);
    commentEdit->setPlainText(text);
    comment = text;
    commentShown = commentEdit->toPlainText();
}

TabProject::TabProject(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    QWidget *content = tabstyle::addScrolledPage(this);
    d->createWidgets(content);
    auto *columns = new QHBoxLayout(content);
    columns->setContentsMargins(24, 8, 24, 16);
    columns->setSpacing(32);
    columns->addLayout(d->leftColumn(), 1);
    columns->addLayout(d->rightColumn(), 1);
    connect(d->form, &ProjectForm::edited, this, &TabProject::projectDataChanged);
    connect(d->commentEdit, &QPlainTextEdit::textChanged, this, &TabProject::commentChanged);
    connect(d->clear, &QPushButton::clicked, this, &TabProject::clearDataClicked);
    for (int i = 0; i < Model::kNumPhases; ++i) {
        connect(d->phases[static_cast<std::size_t>(i)], &QLineEdit::textEdited, this,
                [this, i](const QString &name) { emit phaseEditChanged(i, name); });
    }
    retranslateUi();
}

TabProject::~TabProject() = default;

void TabProject::setModel(Model *model)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->model = model;
    updateFromModel();
}

ProjectData TabProject::projectData() const
{
    return d->form->data();
}

QString TabProject::comment() const
{
    // The field gives back some characters changed (no-break spaces); a comment not edited stays as it was.
    const QString text = d->commentEdit->toPlainText();
    return text == d->commentShown ? d->comment : text;
}

void TabProject::updateFromModel()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model)
        return;
    d->form->setData(d->model->projectData());
    if (d->model->comment() != comment())
        d->fillComment(d->model->comment());
    for (int i = 0; i < Model::kNumPhases; ++i) {
        QLineEdit *edit = d->phases[static_cast<std::size_t>(i)];
        if (edit->text() != d->model->phaseName(i))
            edit->setText(d->model->phaseName(i));
    }
}

void TabProject::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabProject::retranslateUi()
{
    d->recordHeading->setText(tr("Projektbeschreibung"));
    d->commentHeading->setText(tr("Kommentar"));
    d->commentEdit->setAccessibleName(tr("Kommentar"));
    d->phaseHeading->setText(tr("Namen der Phasen"));
    for (int i = 0; i < Model::kNumPhases; ++i)
        d->phaseLabels[static_cast<std::size_t>(i)]->setText(tr("Phase &%1:").arg(i + 1));
    d->clear->setText(tr("&Alle Messdaten löschen..."));
    d->clear->setToolTip(tr("Löscht die Messdaten aller Sensoren; die Projektbeschreibung bleibt."));
}
