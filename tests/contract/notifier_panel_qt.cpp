#include "tests/contract/notifier_panel_qt.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "tests/support/source_folder.h"

namespace zelvane::test {

void NotifierPanel::start() {
  const std::string script = inSources("tests/support/desktop/tray_host.py");
  process_.start("/usr/bin/python3", {"-B", QString::fromStdString(script)});
  line();  // which says that it is ready
}

void NotifierPanel::stop() {
  process_.kill();
  process_.waitForFinished();
}

std::vector<std::string> NotifierPanel::tips() {
  std::vector<std::string> tips;
  if (process_.state() != QProcess::Running) return tips;
  const QJsonArray told = ask({"tips"}).toArray();
  std::transform(told.begin(), told.end(), std::back_inserter(tips),
                 [](const QJsonValue& tip) { return tip.toString().toStdString(); });
  return tips;
}

void NotifierPanel::use(const char* method) { ask({"use", method}); }

QJsonValue NotifierPanel::ask(const QJsonArray& question) {
  process_.write(QJsonDocument(question).toJson(QJsonDocument::Compact) + "\n");
  const QJsonObject answer = QJsonDocument::fromJson(line()).object();
  if (answer.contains("refused")) {
    throw std::runtime_error(answer["refused"].toString().toStdString());
  }
  return answer["answer"];
}

QByteArray NotifierPanel::line() {
  constexpr int kPatience = 60'000;  // milliseconds
  if (!QTest::qWaitFor([this] { return process_.canReadLine(); }, kPatience)) {
    throw std::runtime_error("The panel does not answer.");
  }
  return process_.readLine();
}

}  // namespace zelvane::test
