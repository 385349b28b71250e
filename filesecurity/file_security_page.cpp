#include "filesecurity/file_security_page.h"

namespace zelvane::filesecurity {

FileSecurityPage::FileSecurityPage() {
  for (controls::Control* control : controls()) {
    if (control != &fmDravik) {
      control->placeIn(fmDravik);
    }
  }
  lblSourceDestination[0].labels(txtSource);
  lblSourceDestination[1].labels(txtDestination);
  Label1.labels(txtPassword);
  Label2.labels(txtReenter);
  pgb.setDescription("How far the packing or unpacking is.");
  // The designer's choice: encrypting. Neither one file nor a folder is chosen yet.
  Option2.setValue(true);
  cmdDecrypt.setEnabled(false);
}

}  // namespace zelvane::filesecurity
