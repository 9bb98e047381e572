// Qt's own file dialog, honouring the wrapper's flags: the handler the game
// installs at start-up.
#pragma once

#include "platform/FileDialog.h"

class QtFileDialog final : public FileDialogHandler {
public:
    FileDialogResult run(const FileDialogRequest &request) override;
};
