// The page "File Security": what to encrypt or decrypt, under which password.
#pragma once

#include <QWidget>

#include "filesecurity/file_security_page.h"

class QGridLayout;

namespace zelvane::qt {

class FrameWidget;

class FileSecurityTab : public QWidget {
 public:
  FileSecurityTab(filesecurity::FileSecurityPage& page, QWidget& parent);

 private:
  QLayout* makeChoices(filesecurity::FileSecurityPage& page, FrameWidget& frame);
  QLayout* makeFields(filesecurity::FileSecurityPage& page, FrameWidget& frame);
  QLayout* makeJob(filesecurity::FileSecurityPage& page, FrameWidget& frame);
};

}  // namespace zelvane::qt
