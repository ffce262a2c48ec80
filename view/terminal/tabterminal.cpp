#include "view/terminal/tabterminal.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/material/qtmaterialtextfield.h"
#include "view/common/logging.h"
#include "view/common/tabstyle.h"
#include "view/terminal/inputhistory.h"
#include "view/terminal/ringbuffer.h"
#include "view/terminal/streamedit.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kLongestInput = 1000; // characters; the box does not read longer lines

struct TerminalLine
{
    QString text;
    bool sent = false;
};

/// Control characters would break the line or be invisible; Unicode has a symbol for each.
void appendVisible(QString &target, const QString &line)
{
    constexpr ushort kControlPictures = 0x2400;
    int end = line.size();
    while (end > 0 && line.at(end - 1).isSpace())
        --end;
    for (int i = 0; i < end; ++i) {
        const ushort code = line.at(i).unicode();
        target.append(code < 0x20 && code != '\t' ? QChar(kControlPictures + code) : line.at(i));
    }
}

} // namespace

struct TabTerminal::Private
{
    RingBuffer<TerminalLine> pending{TabTerminal::kMaximumLines}; // the field would drop older lines anyway
    InputHistory history;
    StreamEdit *edit = nullptr;
    QtMaterialTextField *input = nullptr;
    QLabel *prompt = nullptr;
    QPushButton *send = nullptr;
    QPushButton *clear = nullptr;

    void add(const QString &line, bool sent);
    [[nodiscard]] QString takePending();
    void layOut(QWidget *tab) const;
};

void TabTerminal::Private::add(const QString &line, bool sent)
{
    pending.push({line, sent});
    edit->scheduleFlush();
}

QString TabTerminal::Private::takePending()
{
    QString text;
    pending.forEach([&text](const TerminalLine &line) {
        if (!text.isEmpty())
            text.append(QLatin1Char('\n'));
        text.append(line.sent ? QLatin1String("> ") : QLatin1String("< "));
        appendVisible(text, line.text);
    });
    pending.clear();
    return text;
}

void TabTerminal::Private::layOut(QWidget *tab) const
{
    auto *row = new QHBoxLayout;
    row->addWidget(prompt);
    row->addWidget(input, 1);
    row->addWidget(send);
    row->addWidget(clear);
    auto *column = new QVBoxLayout(tab);
    column->addWidget(edit, 1);
    column->addLayout(row);
}

TabTerminal::TabTerminal(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->edit = new StreamEdit(kMaximumLines, this);
    d->edit->setObjectName(QStringLiteral("editTerminal"));
    d->edit->setStyleSheet(tabstyle::fixedPitchSheet());
    d->edit->setSource([this] { return d->takePending(); });
    d->input = new QtMaterialTextField(this);
    d->input->setObjectName(QStringLiteral("lineEditTerminal"));
    d->input->setMaxLength(kLongestInput);
    d->input->setClearable(true);
    d->input->installEventFilter(this);
    d->prompt = new QLabel(this);
    d->prompt->setBuddy(d->input);
    d->send = new QtMaterialRaisedButton(this);
    d->send->setObjectName(QStringLiteral("buttonSend"));
    d->clear = new QtMaterialFlatButton(this);
    d->clear->setObjectName(QStringLiteral("buttonClearTerminal"));
    d->layOut(this);
    // In the order of use: the text above the input was created first.
    setTabOrder(d->input, d->send);
    setTabOrder(d->send, d->clear);
    setTabOrder(d->clear, d->edit);
    connect(d->input, &QLineEdit::returnPressed, this, &TabTerminal::onSend);
    connect(d->send, &QPushButton::clicked, this, &TabTerminal::onSend);
    connect(d->clear, &QPushButton::clicked, this, &TabTerminal::clear);
    retranslateUi();
    setFocusProxy(d->input);
}

TabTerminal::~TabTerminal() = default;

void TabTerminal::addReceived(const QString &line)
{
    d->add(line, false);
}

void TabTerminal::addSent(const QString &line)
{
    d->add(line, true);
}

void TabTerminal::clear()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->pending.clear();
    d->edit->clear();
    emit cleared();
}

QString TabTerminal::plainText()
{
    d->edit->flush();
    return d->edit->toPlainText();
}

void TabTerminal::onSend()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QString line = d->input->text();
    if (line.isEmpty())
        return;
    d->history.add(line);
    d->input->clear();
    emit sendRequested(line);
}

bool TabTerminal::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->input || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return QWidget::eventFilter(watched, event);
    const QString typed = d->input->text();
    d->input->setText(key == Qt::Key_Up ? d->history.previous(typed) : d->history.next(typed));
    return true;
}

void TabTerminal::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabTerminal::retranslateUi()
{
    d->prompt->setText(tr("&Befehl:"));
    d->send->setText(tr("Send"));
    d->send->setToolTip(tr("Zeile an die Box senden (Eingabetaste)"));
    d->clear->setText(tr("&Leeren"));
    d->clear->setToolTip(tr("Alle Zeilen aus der Anzeige entfernen"));
    d->input->setToolTip(tr("Zeile für die Box, z. B. deviceDescription\nPfeil nach oben und unten: frühere Zeilen"));
    d->edit->setAccessibleName(tr("Zeilen von und zu der Box"));
    d->edit->setPlaceholderText(tr("„<“ kam von der Box, „>“ ging an die Box."));
}
