#include "about/frm_about.h"

#include "core/version_label.h"
#include "platform/identity.h"

namespace zelvane::about {

frmAbout::frmAbout(AboutPage& page, const platform::Identity& identity)
    : page_(page), identity_(identity) {
  page_.cmdOK.clicked.connect([this] { cmdOK_Click(); });
  page_.frmAbout.unloaded.connect([this] { page_.frmAbout.setVisible(false); });
}

void frmAbout::show() {
  Form_Load();
  page_.frmAbout.setVisible(true);
}

void frmAbout::Form_Load() {
  page_.frmAbout.setCaption("About " + core::versionLabel(identity_.version()));
  page_.lblCopyRight.setCaption(notice(identity_.version()));
}

void frmAbout::cmdOK_Click() { page_.frmAbout.unload(controls::UnloadMode::code); }

std::string notice(const platform::VersionRecord& version) {
  return "All material of this software, its programs, its texts and its pictures,\r\n"
         "is protected by copyright law and by international treaties. No part of it\r\n"
         "may be modified, copied, reproduced, republished, uploaded, posted,\r\n"
         "transmitted or distributed in any way or by any means without the prior\r\n"
         "written consent of its maker.\r\n"
         "All rights reserved. " +
         version.legalText + " " + version.companyName;
}

}  // namespace zelvane::about
