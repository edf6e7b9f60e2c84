// The smallest host: an engine derived from CCorVyn and one dialog that is opened and cancelled.
#include <core_link/cor_vyn.h>
#include <major_bodies/zodiacal_light_dialog.h>

#include <QApplication>
#include <QHash>

namespace {

/// Answers queries from a table and remembers the last command that changed something.
class TableEngine final : public vyn::CCorVyn {
 public:
  QString Doit(const QString& command) override {
    if (command.startsWith(QLatin1String("? "))) return values_.value(command.mid(2));
    lastChange = command;
    return {};
  }
  QString ObjNumToName(int) const override { return {}; }
  int GetLocationObject() const override { return 4; }
  int GetTimeSys() const override { return 0; }

  QString lastChange;

 private:
  QHash<QString, QString> values_{
      {QStringLiteral("solar.CounterGlow.visible"), QStringLiteral("True")}};
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  TableEngine engine;
  vyn::CDlgZodiacalLight dialog(&engine, nullptr, nullptr);
  if (!dialog.Create()) return 1;
  dialog.reject();
  const QString expected =
      QStringLiteral("solar.ZodiacalLight.Visible = FALSE;solar.CounterGlow.Visible = TRUE;");
  return engine.lastChange == expected ? 0 : 1;
}
