#include "ui/qt/qt_dialogs.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSettings>

namespace zelvane::qt {

namespace {

QMessageBox::Icon toQt(platform::MessageIcon icon) {
  switch (icon) {
    case platform::MessageIcon::none:
      return QMessageBox::NoIcon;
    case platform::MessageIcon::information:
      return QMessageBox::Information;
    case platform::MessageIcon::exclamation:
      return QMessageBox::Warning;
    case platform::MessageIcon::critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

// "All Files (*.*) | *.*" becomes "All Files (*)": here, too, "*.*" means every file, and the
// toolkit shows the pattern itself.
QStringList nameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
    QString description = parts[at].trimmed();
    const QString shownPattern = '(' + parts[at + 1].trimmed() + ')';
    if (description.endsWith(shownPattern)) {
      description = description.chopped(shownPattern.size()).trimmed();
    }
    QStringList patterns = parts[at + 1].split(';');
    for (QString& pattern : patterns) {
      pattern = pattern.trimmed();
      pattern = pattern == "*.*" ? "*" : pattern;
    }
    filters.append(description + " (" + patterns.join(' ') + ')');
  }
  return filters;
}

std::optional<std::string> ask(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return dialog.selectedFiles().first().toStdString();
}

}  // namespace

// The toolkit's own dialog on every desktop: those of some desktops add an extension, insist on a
// file that exists, or enter what was chosen into the list of recent documents, which is one of the
// traces that this program erases. The toolkit's keeps its history in a settings file; a folder
// that cannot exist leaves it none.
QtDialogs::QtDialogs(controls::OpenBoxes& boxes) : boxes_(boxes) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

void QtDialogs::show(const platform::MessageBox& box) {
  const controls::OpenBoxes::Opening opening(boxes_);
  QMessageBox message(toQt(box.icon), QString::fromStdString(box.title),
                      QString::fromStdString(box.text), QMessageBox::Ok, window_);
  message.setTextFormat(Qt::PlainText);
  message.exec();
}

std::optional<std::string> QtDialogs::chooseFile(const platform::FileQuestion& question) {
  const controls::OpenBoxes::Opening opening(boxes_);
  QFileDialog dialog(window_, QString::fromStdString(question.title),
                     QString::fromStdString(question.initialFolder));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilters(nameFilters(question.filter));
  return ask(dialog);
}

std::optional<std::string> QtDialogs::chooseFolder(const std::string& prompt) {
  const controls::OpenBoxes::Opening opening(boxes_);
  QFileDialog dialog(window_, QString::fromStdString(prompt));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  dialog.setFileMode(QFileDialog::Directory);
  return ask(dialog);
}

}  // namespace zelvane::qt
