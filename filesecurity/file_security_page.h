// The controls of the "File Security" page. Which button is enabled is the direction, and the
// captions of the two path labels say what the boxes take.
#pragma once

#include <array>

#include "core/controls/button.h"
#include "core/controls/component.h"
#include "core/controls/control_array.h"
#include "core/controls/file_dialog.h"
#include "core/controls/frame.h"
#include "core/controls/label.h"
#include "core/controls/option_button.h"
#include "core/controls/progress_bar.h"
#include "core/controls/text_box.h"
#include "core/controls/timer.h"

namespace zelvane::filesecurity {

struct FileSecurityPage : controls::Page {
  FileSecurityPage();

  controls::Frame fmDravik{*this, "fmDravik", ""};

  controls::OptionGroup direction;
  controls::OptionButton Option2{*this, "Option2", "Encrypt", direction};
  controls::OptionButton Option3{*this, "Option3", "Decrypt", direction};

  controls::OptionGroup unit;
  controls::OptionButton Option4{*this, "Option4", "Encrypt/Decrypt single file", unit};
  controls::OptionButton Option5{*this, "Option5", "Encrypt/Decrypt entire folder", unit};
  controls::Label lblFileOrFolder{*this, "lblFileOrFolder",
                                  "Click here to encrypt/decrypt a single file"};

  std::array<controls::Label, 2> lblSourceDestination = controls::controlArray<controls::Label, 2>(
      *this, "lblSourceDestination",
      [](std::size_t index) { return index == 0 ? "Source File:" : "Destination File:"; });
  controls::TextBox txtSource{*this, "txtSource"};
  controls::TextBox txtDestination{*this, "txtDestination"};
  std::array<controls::Button, 2> cmdBrowseFileFolder = controls::controlArray<controls::Button, 2>(
      *this, "cmdBrowseFileFolder", [](std::size_t) { return "Browse"; });

  controls::Label Label1{*this, "Label1", "Password:"};
  controls::TextBox txtPassword{*this, "txtPassword", "", controls::TextBox::Kind::password};
  controls::Label Label2{*this, "Label2", "Re-enter:"};
  controls::TextBox txtReenter{*this, "txtReenter", "", controls::TextBox::Kind::password};

  // Shown, never read: the cipher decides the size of its keys.
  controls::OptionGroup keySize;
  controls::OptionButton optBit{*this, "optBit", "128 bit", keySize};
  controls::OptionButton Option1{*this, "Option1", "64 bit", keySize};

  controls::Button cmdEncrypt{*this, "cmdEncrypt", "Encrypt"};
  controls::Button cmdDecrypt{*this, "cmdDecrypt", "Decrypt"};
  controls::ProgressBar pgb{*this, "pgb"};
  controls::Timer tmrProgress{*this, "tmrProgress", std::chrono::milliseconds(10), false};

  controls::FileDialog CommanDialog{*this, "CommanDialog"};
  controls::Label lblAbountVexmora{*this, "lblAbountVexmora", "About FileSecurity ..."};
  controls::Component crpControl{*this, "crpControl"};
  controls::Component zipControl{*this, "zipControl"};
  controls::Component unzipControl{*this, "unzipControl"};
};

}  // namespace zelvane::filesecurity
