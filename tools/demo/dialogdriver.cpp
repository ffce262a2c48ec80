#include "tools/demo/dialogdriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>

namespace {

constexpr int kLookInterval = 40; // ms

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

} // namespace

DialogDriver::DialogDriver(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &DialogDriver::look);
    m_timer.start(kLookInterval);
}

// A dialog is answered at the second look, when it has been laid out and painted.
void DialogDriver::look()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog != m_seen || !dialog) {
        m_seen = dialog;
        return;
    }
    m_seen = nullptr;
    if (m_answers.empty()) {
        m_surprises.append(QStringLiteral("unexpected dialog: ") + dialog->windowTitle());
        dialog->close();
        return;
    }
    const Answer answer = m_answers.front();
    m_answers.pop_front();
    answerWith(dialog, answer);
}

void DialogDriver::answerWith(QWidget *dialog, const Answer &answer)
{
    auto *fileDialog = qobject_cast<QFileDialog *>(dialog);
    if (fileDialog)
        typeFileName(fileDialog, answer.fileName);
    if (!answer.picture.isEmpty())
        emit pictureWanted(dialog, answer.picture);
    if (fileDialog)
        chooseFile(fileDialog, answer.fileName);
    else
        pressButton(dialog, answer.button);
}

void DialogDriver::typeFileName(QFileDialog *dialog, const QString &fileName)
{
    if (auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
        edit->setText(fileName);
}

void DialogDriver::chooseFile(QFileDialog *dialog, const QString &fileName)
{
    if (fileName.isEmpty())
        dialog->reject();
    else
        static_cast<QDialog *>(dialog)->accept(); // QFileDialog only protects what it overrides
}

void DialogDriver::pressButton(QWidget *dialog, const QString &text)
{
    const auto buttons = dialog->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (withoutMnemonic(button->text()) != text)
            continue;
        button->click();
        return;
    }
    m_surprises.append(QStringLiteral("no button \"%1\" in: %2").arg(text, dialog->windowTitle()));
    dialog->close();
}
