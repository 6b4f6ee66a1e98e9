#pragma once

#include <QString>

class QWidget;

namespace quend::storage {

/// Where the search for a picture starts. The file and the folder need not exist.
struct PictureRequest {
    QString file;
    QString folder;
};

/// Lets the user select a picture file.
class PictureChooser {
public:
    virtual ~PictureChooser() = default;
    /// The full path of an existing file; empty when the user cancelled.
    virtual QString Choose(QWidget& parent, const PictureRequest& request) = 0;
};

/// Qt's dialog for opening a file, or the native one of the desktop where available.
class PictureDialog : public PictureChooser {
public:
    QString Choose(QWidget& parent, const PictureRequest& request) override;
};

} // namespace quend::storage
