// The least that a program with a window of this toolkit does: a window with one label.
#include <QApplication>
#include <QLabel>

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QLabel label("A window with one label");
  label.resize(640, 480);
  label.show();
  return QApplication::exec();
}
