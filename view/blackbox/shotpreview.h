#pragma once

#include "model/blackbox/blackboxfile.h"

#include <QWidget>

/// A small picture of the shot in a logger file: every sensor's curve over the whole height, and below it what the
/// file holds. Of a long file only the beginning is read, so that choosing one never makes the user wait.
class ShotPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ShotPreview(QWidget *parent = nullptr);

    /// Shows a logger file; an empty name shows nothing. Reads the file again even if it is the same.
    void setFile(const QString &fileName);
    /// Numbers of samples, time of recording, and what is wrong with the file, in the current language.
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    enum class Content { Nothing, Unreadable, Shot };

    void read();

    QString m_fileName;
    BlackBoxDocument m_document;
    Content m_content = Content::Nothing;
    bool m_isCut = false; ///< the file is longer than what was read
};
