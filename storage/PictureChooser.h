#pragma once

#include <QString>

class QWidget;

/// Where looking for a picture starts. Neither the file nor the folder need exist.
struct PictureRequest {
    QString file;
    QString folder;
};

/// Lets the user look for a picture file.
class PictureChooser {
public:
    virtual ~PictureChooser() = default;
    /// The full path of an existing file; empty when the user gave up.
    virtual QString Choose(QWidget& parent, const PictureRequest& request) = 0;
};
