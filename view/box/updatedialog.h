#pragma once

#include <QDialog>

#include <functional>

class MesotraConnector;
class QFrame;
class QLabel;
class QLayout;
class QPushButton;

/// Picks a firmware archive, puts it onto the box and restarts the box. Modal; closed by the user only. Failures
/// are shown in the two result labels: the upper one is for the upload, the lower one for the restart. Each step
/// enables the next one. While the upload runs, "Abbrechen" ends it; while the dialog waits for a connection, it cannot
/// be closed.
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    /// Asks the user for a file to open, given a title and a name filter; empty: cancelled.
    using AskFile = std::function<QString(const QString &title, const QString &filter)>;

    /// The connector must outlive the dialog. `address` is where a box that is not connected is looked for, for
    /// `restartWait` ms.
    UpdateDialog(QWidget *parent, AskFile askFile, MesotraConnector *connector, const QString &address,
                 int restartWait = 3000);

    /// Empty until one is chosen.
    [[nodiscard]] QString fileName() const { return m_fileName; }

public slots:
    void onSelectFile();
    void onUpload();
    void onRestart();
    /// Closes the dialog, or ends the upload that is under way.
    void reject() override;

signals:
    /// The box was told to restart; the link will break.
    void restartSent();

protected:
    void changeEvent(QEvent *event) override;

private:
    enum class Upload { None, Running, Failed, Done };
    enum class Restart { None, Connecting, NoConnection, Connected, Sent, Failed };

    void createWidgets();
    void layOut();
    [[nodiscard]] QLayout *fileRow();
    [[nodiscard]] QLayout *buttonRow();
    void connectButtons();
    void updateState();
    void setUpload(Upload upload);
    void setRestart(Restart restart);
    [[nodiscard]] QString uploadText() const;
    [[nodiscard]] QString restartText() const;
    [[nodiscard]] bool isBusy() const;
    [[nodiscard]] bool waitForConnection();
    void retranslateUi();

    AskFile m_askFile;
    MesotraConnector *m_connector;
    QString m_address;
    QString m_fileName;
    int m_restartWait;
    Upload m_upload = Upload::None;
    Restart m_restart = Restart::None;

    QFrame *m_mainFrame = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_hint = nullptr;
    QPushButton *m_selectFile = nullptr;
    QLabel *m_file = nullptr;
    QPushButton *m_uploadButton = nullptr;
    QLabel *m_uploadResult = nullptr;
    QPushButton *m_restartButton = nullptr;
    QLabel *m_restartResult = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_ok = nullptr;
};
