// Every dialog on engines that reply oddly: nothing breaks, nothing that is no statement is sent,
// and what is sent holds no number that is none.
#include <gtest/gtest.h>

#include <QApplication>
#include <QRegularExpression>
#include <QSlider>
#include <QTest>

#include "image_data/corona_dialog.h"
#include "image_data/planet_texture_dialog.h"
#include "image_data/sunspot_dialog.h"
#include "image_data/taken_image_dialog.h"
#include "major_bodies/dwarf_planet_dialog.h"
#include "major_bodies/planet_dialog.h"
#include "major_bodies/satellite_dialog.h"
#include "major_bodies/solar_dialog.h"
#include "major_bodies/sun_dialog.h"
#include "major_bodies/zodiacal_light_dialog.h"
#include "siblings/controls/controls.h"
#include "small_bodies/comet_dialog.h"
#include "small_bodies/comet_tail_dialog.h"
#include "small_bodies/dust_trail_dialog.h"
#include "small_bodies/meteorite_dialog.h"
#include "small_bodies/minor_planet_dialog.h"
#include "tests/print_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Replies to every query with the same text, but to counts with a small number: how many there
/// are is another question.
class OddEngine final : public CCorVyn {
 public:
  explicit OddEngine(QString text) : text_(std::move(text)) {}

  QString Doit(const QString& command) override {
    if (!hasWindow) sentWithoutWindow += command;
    if (!command.startsWith(u'?')) {
      changes += command;
      return {};
    }
    if (command == u"? solar.planet.satellite.count") return u"99"_s;
    return command.endsWith(u"count", Qt::CaseInsensitive) ? u"3"_s : text_;
  }
  QString ObjNumToName(int) const override { return text_; }
  int GetLocationObject() const override { return 99; }
  int GetTimeSys() const override { return -1; }
  bool WindowExists() const override { return hasWindow; }

  QStringList changes;
  bool hasWindow = true;
  QStringList sentWithoutWindow;

 private:
  QString text_;
};

/// Sends away whatever window comes up and waits for someone.
class Dismissal final : public QObject {
 public:
  Dismissal() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isModal()) {
      ++windows;
      QMetaObject::invokeMethod(watched, &QObject::deleteLater, Qt::QueuedConnection);
      auto* dialog = qobject_cast<QDialog*>(watched);
      if (dialog != nullptr) {
        QMetaObject::invokeMethod(
            dialog, [dialog] { dialog->done(0); }, Qt::QueuedConnection);
      }
    }
    return false;
  }

  int windows = 0;
};

template <class Dialog>
std::unique_ptr<CVynDialog> Make(CCorVyn* engine) {
  return std::make_unique<Dialog>(engine, nullptr, nullptr);
}

std::unique_ptr<CVynDialog> MakeTail(CCorVyn* engine) {
  auto dialog = std::make_unique<CDlgCometTail>(u"Solar.Comet.No1"_s, nullptr);
  dialog->SetCorVyn(engine, nullptr);
  return dialog;
}

struct Kind {
  const char* name;
  std::unique_ptr<CVynDialog> (*make)(CCorVyn*);
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

const Kind kKinds[] = {
    {"Planet", Make<CDlgPlanet>},
    {"DwarfPlanet", Make<CDlgDwarfPlanet>},
    {"Sat", Make<CDlgSat>},
    {"Sun", Make<CDlgSun>},
    {"Solar", Make<CDlgSolar>},
    {"ZodiacalLight", Make<CDlgZodiacalLight>},
    {"Comet", Make<CDlgComet>},
    {"MinorPlanet", Make<CDlgMinorPlanet>},
    {"Meteorite", Make<CDlgMeteorite>},
    {"DustTrail", Make<CDlgDustTrail>},
    {"Corona", Make<CDlgCorona>},
    {"SunSpot", Make<CDlgSunSpot>},
    {"TakenImg", Make<CDlgTakenImg>},
    {"PlanetTex", Make<CDlgPlanetTex>},
    {"CometTail", MakeTail},
};

/// Does to a control what comes to a person's hand.
void Use(QWidget& control) {
  if (auto* edit = qobject_cast<QLineEdit*>(&control)) {
    QTest::keyClicks(edit, u"9"_s);
    edit->selectAll();
    QTest::keyClicks(edit, u"-1e"_s);
    edit->clear();
  } else if (auto* spin = qobject_cast<CVynSpinButton*>(&control)) {
    QTest::mouseClick(spin, Qt::LeftButton, {}, spin->UpRect().center());
    QTest::mouseClick(spin, Qt::LeftButton, {}, spin->DownRect().center());
  } else if (auto* slider = qobject_cast<QSlider*>(&control)) {
    slider->setValue(slider->maximum());
    slider->setValue(slider->minimum());
  } else if (auto* combo = qobject_cast<QComboBox*>(&control)) {
    QTest::keyClick(combo, Qt::Key_Down);
  } else {
    QTest::mouseClick(&control, Qt::LeftButton, {}, {8, 8});
    QTest::keyClick(&control, Qt::Key_Down);
    QTest::keyClick(&control, Qt::Key_V);
  }
}

void UseAll(CVynDialog& dialog) {
  for (QWidget* control : dialog.Controls()) {
    const int id = ControlIdOf(control);
    const bool closes = id == kOkButton || id == kCancelButton || id == kHelpButton;
    if (!closes && control->isEnabled() && control->isVisible()) Use(*control);
    QCoreApplication::processEvents();
  }
}

QStringList StatementsOf(const QString& command) {
  QStringList statements;
  qsizetype begin = 0;
  bool quoted = false;
  for (qsizetype i = 0; i <= command.size(); ++i) {
    if (i < command.size() && command[i] == u'"') quoted = !quoted;
    if (i < command.size() && (command[i] != u';' || quoted)) continue;
    statements += command.sliced(begin, i - begin).trimmed();
    begin = i + 1;
  }
  return statements;
}

class OddReplies : public testing::TestWithParam<Kind> {
 protected:
  Dismissal dismissal_;
};

INSTANTIATE_TEST_SUITE_P(Dialogs, OddReplies, testing::ValuesIn(kKinds),
                         [](const auto& info) { return info.param.name; });

TEST_P(OddReplies, BringNothingButStatements) {
  static const QRegularExpression statement(
      u"^(|[Ss]how [Ss]ky|(Init|Make) Status\\.#\\d+|[\\w.#-]+ =.*|[\\w.#]*\\.?\\w+\\(.*\\)?)$"_s);
  static const QRegularExpression noNumber(
      u"(?i)(span|beta\\w*|multiplier|magnitude|roll|shift|opacity|latitude|"
      "longitude|time) = -?(nan|inf)"_s);
  for (const QString& text : {u""_s, u"TRUE"_s, u"-1"_s, u"nan"_s, u"1e300"_s}) {
    OddEngine engine(text);
    const auto dialog = GetParam().make(&engine);
    if (!dialog->Create()) continue;
    UseAll(*dialog);
    for (const QString& command : engine.changes) {
      for (const QString& part : StatementsOf(command)) {
        EXPECT_TRUE(statement.match(part).hasMatch())
            << text.toStdString() << ": " << part.toStdString();
        EXPECT_FALSE(noNumber.match(part).hasMatch())
            << text.toStdString() << ": " << part.toStdString();
      }
    }
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
  }
}

TEST_P(OddReplies, OfAnyTextBreakNothing) {
  for (const QString& text :
       {u"\"; a = ( ;\r\n%1 %s %n &&"_s, QString(300, u'漢'), QString(QChar(0xD800))}) {
    OddEngine engine(text);
    const auto dialog = GetParam().make(&engine);
    if (!dialog->Create()) continue;
    UseAll(*dialog);
    dialog->grab();
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
  }
}

TEST_P(OddReplies, AreNotNeededToOpenUseAndClose) {
  const auto dialog = GetParam().make(nullptr);
  if (!dialog->Create()) return;
  UseAll(*dialog);
  dialog->close();
  EXPECT_FALSE(dialog->isVisible());
}

TEST_P(OddReplies, EndWithTheEnginesWindow) {
  const QStringList takingAnEngineForGranted = {u"Planet"_s, u"DwarfPlanet"_s, u"Sat"_s,
                                                u"Sun"_s,    u"Solar"_s,       u"ZodiacalLight"_s};
  OddEngine engine(u"TRUE"_s);
  engine.hasWindow = false;
  const auto dialog = GetParam().make(&engine);
  if (!dialog->Create()) return;
  UseAll(*dialog);
  dialog->close();
  if (takingAnEngineForGranted.contains(QString::fromUtf8(GetParam().name))) return;
  EXPECT_EQ(engine.sentWithoutWindow.join(u'|'), u"");
}

}  // namespace
}  // namespace vyn
