#include "tools/vyn-drive/application.h"

#include <cstdio>
#include <cstdlib>

#include <QFontDatabase>
#include <QProxyStyle>
#include <QStyleFactory>

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

/// Nothing moves by itself.
class StillStyle final : public QProxyStyle {
 public:
  StillStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

[[noreturn]] void GiveUp(const QString& reason) {
  std::fputs((u"vyn-drive: "_s + reason + u'\n').toUtf8().constData(), stderr);
  std::_Exit(1);
}

/// Qt reports a missing platform as a fatal message, and would abort. Its remarks on single events
/// are no concern of who runs a script.
void OnQtMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) GiveUp(message);
  if (type == QtCriticalMsg) std::fputs((message + u'\n').toUtf8().constData(), stderr);
}

QString JapaneseFamily() {
  const QStringList families = QFontDatabase::families(QFontDatabase::Japanese);
  for (const QString& wanted : {u"IPAPGothic"_s, u"IPAGothic"_s}) {
    if (families.contains(wanted)) return wanted;
  }
  if (families.isEmpty()) GiveUp(u"no installed font has Japanese characters"_s);
  return families.first();
}

}  // namespace

std::unique_ptr<QApplication> StartApplication(int& argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(OnQtMessage);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  auto application = std::make_unique<QApplication>(argc, argv);
  // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style
  QApplication::setStyle(new StillStyle);
  QApplication::setFont(QFont(JapaneseFamily(), 10));
  // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
  QApplication::setCursorFlashTime(0);
  QApplication::setQuitOnLastWindowClosed(false);
  return application;
}

}  // namespace vyn::drive
