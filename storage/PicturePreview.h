#pragma once

#include <QImage>
#include <QLabel>

/// A sample of a picture file: the whole picture, in its proportions, never larger than it is. Says
/// in words when there is none, when the file cannot be shown, or when it is cut off. A damaged or
/// enormous file costs neither time nor memory.
class PicturePreview : public QLabel {
    Q_OBJECT

public:
    explicit PicturePreview(QWidget* parent = nullptr);

    /// An empty path means no picture.
    void ShowFile(const QString& path);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }
    QSize minimumSizeHint() const override { return sizeHint() / 2; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowPicture();

    QImage m_picture; ///< no finer than any preview needs
    QSize m_ownSize;
    QString m_note; ///< what is to be said of a picture that is shown
};
