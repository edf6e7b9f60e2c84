// The driver's commands on every dialog there is: what is printed, what is refused, and that no
// command does what a person could not do.
#include <list>

#include <gmock/gmock.h>

#include <QFile>
#include <QImage>
#include <QRegularExpression>

#include "siblings/controls/controls.h"
#include "tests/print_text.h"
#include "tools/vyn-drive/session.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* kOpenings[] = {
    "CDlgPlanet",
    "CDlgDwarfPlanet",
    "CDlgSat",
    "CDlgSun",
    "CDlgSolar",
    "CDlgZodiacalLight",
    "CDlgComet",
    "CDlgMinorPlanet",
    "CDlgMeteorite",
    "CDlgDustTrail",
    "CDlgCorona",
    "CDlgSunSpot",
    "CDlgTakenImg",
    "CDlgPlanetTex",
    "CDlgCometTail Solar.Comet.No1",
    "CDlgElementManEdit new comet",
    "CDlgElementManEdit new minorplanet",
    "CDlgElementImportBlankID 1P",
    "CDlgElementImportDuplicate import 1P 1P",
};

/// Runs scripts and tells what they print; a refusal ends the output as "error: LINE: reason".
class Drive {
 public:
  QString operator()(const QString& script) {
    scripts_.push_back(ReadLines(script));
    testing::internal::CaptureStdout();
    QString error;
    try {
      session_.Run(scripts_.back());
    } catch (const ScriptError& refusal) {
      error = u"error: %1: %2\n"_s.arg(session_.Line().number).arg(refusal.reason);
    }
    std::fflush(stdout);
    return QString::fromStdString(testing::internal::GetCapturedStdout()) + error;
  }

  Session& operator*() { return session_; }
  CVynDialog& Dialog() { return session_.dialogs.Active(); }

  /// The numbers of the dialog's controls.
  QList<int> Controls() {
    QList<int> ids;
    for (const QWidget* widget : Dialog().findChildren<QWidget*>()) {
      const int id = ControlIdOf(widget);
      if (id > 0 && Dialog().GetDlgItem(id) == widget) ids += id;
    }
    return ids;
  }

 private:
  std::list<std::vector<ScriptLine>> scripts_;
  QTemporaryDir shots_;
  Session session_{u"test.drive"_s, shots_.filePath(u"shots"_s)};
};

/// Each dialog over the comets of the demo planetarium and its starting state.
class EveryDialog : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    const QString opened =
        drive_(u"elements comet \"%1\"\nengine sky\ntrace all\ntrace off\nopen %2\nwait"_s.arg(
            QStringLiteral(VYN_ELEMENT_FILE), Opening()));
    ASSERT_TRUE(opened.startsWith(u"opened: "_s + ClassName() + u" \"")) << qPrintable(opened);
    ASSERT_FALSE(drive_.Controls().isEmpty());
  }

  static QString Opening() { return QString::fromUtf8(GetParam()); }
  static QString ClassName() { return Opening().section(u' ', 0, 0); }

  QString Show(int id) { return drive_(u"show %1"_s.arg(id)); }

  QString KindOf(int id) { return Show(id).section(u' ', 2, 2); }

  Drive drive_;
};

INSTANTIATE_TEST_SUITE_P(Drive, EveryDialog, testing::ValuesIn(kOpenings), [](const auto& info) {
  std::string name = info.param;
  std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
  return name;
});

TEST_P(EveryDialog, ShowsItsControlsInOneForm) {
  static const QRegularExpression form(
      u"^control (\\d+): (check|radio|button|static|group|edit|spin|slider|list|combo|progress|"
      "preview|objectlist|satellitelist) \"(?:[^\"\\\\]|\\\\[\"\\\\nrt])*\" (-?\\d+|-) "
      "(enabled|disabled)( readonly)?( hidden)?\n$"_s);
  static const QHash<QString, QString> values = {
      {u"check"_s, u"[01]"_s},         {u"radio"_s, u"[01]"_s},
      {u"slider"_s, u"-?\\d+"_s},      {u"progress"_s, u"-?\\d+"_s},
      {u"list"_s, u"-1|\\d+"_s},       {u"combo"_s, u"-1|\\d+"_s},
      {u"objectlist"_s, u"-1|\\d+"_s}, {u"satellitelist"_s, u"-1|\\d+"_s},
  };
  for (const int id : drive_.Controls()) {
    const QString shown = Show(id);
    const auto match = form.match(shown);
    ASSERT_TRUE(match.hasMatch()) << qPrintable(shown);
    EXPECT_EQ(match.captured(1), QString::number(id));
    const QString value = values.value(match.captured(2), u"-"_s);
    EXPECT_TRUE(QRegularExpression(u"^(?:%1)$"_s.arg(value)).match(match.captured(3)).hasMatch())
        << qPrintable(shown);
  }
}

TEST_P(EveryDialog, TellsOfAControlWhatItHasAndRefusesTheRest) {
  const struct {
    QString question;
    QString answer;  ///< a pattern
    QStringList kinds;
  } looks[] = {
      {u"size %1"_s, u"size %1: \\d+ \\d+\n"_s, {}},
      {u"tooltip %1"_s, u"tooltip %1: \".*\"\n"_s, {}},
      {u"limit %1"_s, u"limit %1: \\d+\n"_s, {u"edit"_s}},
      {u"range %1"_s, u"range %1: -?\\d+ -?\\d+\n"_s, {u"slider"_s, u"progress"_s, u"spin"_s}},
      {u"list %1"_s,
       u"list %1: \\d+ rows, selected (-1|\\d+)\n(  \\d+: \".*\"\n)*"_s,
       {u"list"_s, u"combo"_s, u"objectlist"_s, u"satellitelist"_s}},
      {u"headers %1"_s, u"headers %1: \".*\"(\\|\".*\")*\n"_s, {u"objectlist"_s}},
      {u"cells %1 0 0"_s, u""_s, {u"list"_s, u"combo"_s, u"objectlist"_s, u"satellitelist"_s}},
  };
  for (const int id : drive_.Controls()) {
    const QString kind = KindOf(id);
    for (const auto& [question, answer, kinds] : looks) {
      const QString printed = drive_(question.arg(id));
      const bool isRefused = printed.startsWith(u"error: 1: ");
      const bool mayRefuse = !kinds.isEmpty() && (kind == u"spin" || !kinds.contains(kind));
      if (isRefused && mayRefuse) continue;
      EXPECT_TRUE(kinds.isEmpty() || kinds.contains(kind)) << qPrintable(printed);
      const QRegularExpression pattern(u"^%1$"_s.arg(answer.arg(id)));
      EXPECT_TRUE(pattern.match(printed).hasMatch()) << qPrintable(printed);
    }
  }
}

TEST_P(EveryDialog, NothingCanBeDoneToADisabledOrHiddenControl) {
  const QStringList actions = {
      u"click %1"_s,           u"dblclick %1"_s,        u"press %1 Space"_s,
      u"press %1 Return"_s,    u"press %1 V"_s,         u"type %1 5"_s,
      u"paste %1 5"_s,         u"spin %1 up 2 shift"_s, u"slide %1 7"_s,
      u"choose %1 1"_s,        u"row %1 1"_s,           u"cell %1 1 3"_s,
      u"header %1 3"_s,        u"dblclick %1 1 3"_s,    u"drag %1 1 1 9 9"_s,
      u"mouse %1 press 3 3"_s, u"mouse %1 move 9 9"_s,  u"mouse %1 release 9 9"_s};
  // Being painted, lists ask for their rows.
  drive_(u"trace changes\ncounts"_s);
  for (const int id : drive_.Controls()) {
    QWidget& control = *drive_.Dialog().GetDlgItem(id);
    for (const bool hides : {false, true}) {
      hides ? control.setVisible(false) : control.setEnabled(false);
      const QString before = Show(id);
      for (const QString& action : actions) {
        const QString printed = drive_(action.arg(id));
        // What the control has no rows or arrows for is refused, whether it is enabled or not.
        EXPECT_TRUE(printed.isEmpty() || printed.startsWith(u"error: 1: "))
            << qPrintable(action.arg(id) + u": " + printed);
        ASSERT_EQ(Show(id), before) << qPrintable(action.arg(id));
      }
      hides ? control.setVisible(true) : control.setEnabled(true);
    }
  }
  EXPECT_TRUE(drive_(u"counts"_s).endsWith(u" queries, 0 changes\n"));
}

TEST_P(EveryDialog, ClosesByItsCloseBoxAsByCancel) {
  const QString name = ClassName();
  // The questions of an import want an answer.
  const bool isQuestion = name.startsWith(u"CDlgElementImport");
  if (isQuestion) {
    EXPECT_EQ(drive_(u"close"_s), u"");
    drive_(u"click 1"_s);
    return;
  }
  EXPECT_EQ(drive_(u"close"_s), u"closed: "_s + name + u" cancel\n");
  EXPECT_EQ(drive_(u"click 1"_s), u"error: 1: no dialog is open\n");
}

struct Refusal {
  const char16_t* script;
  const char16_t* error;
};

TEST(Commands, WhatCannotBeCarriedOutIsRefusedWithLineAndReason) {
  const Refusal refusals[] = {
      {u"open CDlgSat\ncells 1507 -1 1", u"2: negative: -1 (FIRST)"},
      {u"set solar.planet.mars.satellite.count 1\nopen CDlgSat",
       u"2: the dialog does not open: more satellites than counted"},
      {u"engine sky\nopen CDlgSat\ncell 1507 464 1508", u"3: no such row: 464"},
      {u"engine sky\nopen CDlgSat\ncell 1507 0 1", u"3: no such column: 1"},
      {u"engine sky\nopen CDlgSat\nheaders 1507", u"3: the control has no headings"},
      {u"engine sky\nopen CDlgSat\ncells 1521 0 1", u"3: the control has no cells"},
      {u"engine sky\nopen CDlgSat\nchoose 1521 11", u"3: no such row: 11"},
      {u"open CDlgComet\nheader 1705 99", u"2: no such column: 99"},
      {u"open CDlgSun\nmouse 1001 press nan 1", u"2: not a number: nan (X)"},
      {u"open CDlgSun\nmouse 1001 press 1 inf%", u"2: not a number: inf% (Y)"},
      {u"open CDlgSun\nmouse 1001 press 1e300 1", u"2: not a number: 1e300 (X)"},
      {u"open CDlgSun\nmouse 1001 hover 1 1", u"2: unknown word: hover"},
      {u"open CDlgSun\nmouse 1001 press 1 1 middle", u"2: one word too many: middle"},
      {u"open CDlgSun\ndrag 1001 1 1 2", u"2: missing argument: Y"},
      {u"open CDlgSun\ncall Apply now", u"2: one word too many: now"},
      {u"open CDlgMeteorite\ncall Apply", u"2: no public operation of CDlgMeteorite"},
      {u"open CDlgSun\nspin 1001 up", u"2: not a spin button: 1001"},
      {u"open CDlgCometTail", u"1: missing argument: the comet's path"},
      {u"open CDlgSun\nshow", u"2: missing argument: ID"},
      {u"open CDlgSun\nshow 1001 1001x", u"2: not a whole number: 1001x (ID)"},
      {u"open CDlgSun\npress 1001 Shift+", u"2: unknown key: "},
      {u"open CDlgSun\npress 1001 Hyper+V", u"2: unknown modifier key: Hyper"},
      {u"answer progress 5", u"1: missing argument: stop"},
      {u"answer progress stop -5", u"1: negative: -5 (PERCENT)"},
      {u"answer color ok", u"1: one word too many: ok"},
      {u"answer CDlgSun now\nend", u"1: one word too many: now"},
      {u"answer CDlgSun\nend now", u"1: the answer has no end"},
      {u"answer", u"1: missing argument: box, file, color, progress or a dialog class"},
      {u"trace some", u"1: unknown word: some (all, changes or off)"},
      {u"get", u"1: missing argument: PATH"},
      {u"counts all", u"1: one word too many: all"},
      {u"registry erase a b", u"1: unknown word: erase (write or read)"},
      {u"elements meteor a.eld", u"1: unknown word: meteor (comet or minorplanet)"},
      {u"Get a", u"1: unknown word: Get"},
      {u"\"\"", u"1: unknown word: "},
  };
  for (const auto& [script, error] : refusals) {
    Drive drive;
    drive(u"trace off"_s);
    const QString printed = drive(QString::fromUtf16(script));
    const qsizetype begin = printed.indexOf(u"error: ");
    EXPECT_EQ(begin < 0 ? printed : printed.sliced(begin),
              u"error: "_s + QString::fromUtf16(error) + u'\n')
        << qPrintable(QString::fromUtf16(script));
  }
}

TEST(Commands, OfAListTheRowsThatItHasArePrinted) {
  Drive drive;
  drive(u"open CDlgSat"_s);
  EXPECT_EQ(drive(u"cells 1507 0 1\ncells 1507 2147483647 2147483647"_s), QString());
  drive(u"engine sky\nopen CDlgSat"_s);
  EXPECT_EQ(drive(u"cells 1507 460 100"_s).count(u'\n'), 4);
  drive(u"open CDlgComet"_s);
  EXPECT_EQ(drive(u"cells 1705 0 1"_s), QString());
}

TEST(Commands, ValuesThatWereSetAnswerUntilSomethingAssignsToThem) {
  Drive drive;
  drive(u"elements comet \"%1\"\nengine sky"_s.arg(QStringLiteral(VYN_ELEMENT_FILE)));
  const struct {
    QString path, assignment;
  } cases[] = {
      {u"Solar.Comet.Count"_s, u"solar.comet.count = 5"_s},
      {u"Solar.Comet.CountOfVisible"_s, u"SOLAR.COMET.COUNTOFVISIBLE = 5"_s},
      {u"Solar.Comet.No2.ID"_s, u"Solar.Comet.no2.id = x"_s},
      {u"Solar.Comet.No2.Brighter"_s, u"Solar.Comet.No2.Brighter = FALSE"_s},
      {u"Solar.Comet.No2.Orbit"_s, u"Solar.Comet.No2.Orbit.Visible = FALSE"_s},
      {u"Solar.Comet.No3.Orbit"_s, u"Solar.Comet.Orbit.Visible = FALSE"_s},
      {u"Solar.Comet.Status"_s, u"Solar.Comet.Status = x"_s},
      {u"Solar.Comet.No2.Status"_s, u"Solar.Comet.No2.Status = x"_s},
      {u"Time.Year"_s, u"time = jst(2000, 1, 1, 0, 0, 0)"_s},
      {u"Solar.Sun.Name.Color"_s, u"solar.sun.name.color = 1"_s},
  };
  for (const auto& [path, assignment] : cases) {
    const QString get = u"get %1"_s.arg(path);
    const auto reply = [&](const QString& text) {
      return u"value: %1 = \"%2\"\n"_s.arg(path, text);
    };
    EXPECT_EQ(drive(u"set %1 put   here\n%2"_s.arg(path.toUpper(), get)), reply(u"put here"_s));
    (*drive).engines.Engine().Doit(u"Show Sky; x.y = 1"_s);
    EXPECT_EQ(drive(get), reply(u"put here"_s));
    (*drive).engines.Engine().Doit(assignment);
    EXPECT_NE(drive(get), reply(u"put here"_s));
  }
}

TEST(Commands, AFreshEngineKnowsNothing) {
  for (const QString& path :
       {u"Time"_s, u"Time.Year"_s, u"Location.Longitude"_s, u"View.Projection"_s,
        u"Solar.Sun.Visible"_s, u"Solar.Planet.Mars.Satellite.Count"_s, u"Solar.Comet.Count"_s,
        u"Solar.Comet.CountOfVisible"_s, u"Solar.MinorPlanet.OrbitalType.Count"_s,
        u"Solar.Meteorite.Count"_s, u"Solar.Comet.Status"_s, u"Status"_s,
        u"Solar.Sun.Corona.Count"_s, u"Solar.Planet.Disk.Multiplier"_s}) {
    Drive bare;
    EXPECT_EQ(bare(u"get %1"_s.arg(path)), u"value: %1 = \"\"\n"_s.arg(path));
  }
}

TEST(Commands, TextsComeThroughEveryWayUnchanged) {
  const QString written = uR"("a \"b\" \\ \n\r\t # ; 月")"_s;
  Drive drive;
  EXPECT_EQ(drive(u"set a %1\nget a"_s.arg(written)), u"value: a = %1\n"_s.arg(written));
  EXPECT_EQ(drive(u"registry write \"Dialog\\\\Comet\" %1 %1\n"
                  "registry read \"Dialog\\\\Comet\" %1"_s.arg(uR"("a \"b\" # 月")"_s)),
            u"registry: Dialog\\Comet a \"b\" # 月 = \"a \\\"b\\\" # 月\"\n");
  EXPECT_EQ(drive(u"registry write k n \"\"\nregistry read k n\nregistry read k m"_s),
            u"registry: k n = \"\"\nregistry: k m = (none)\n");
  EXPECT_EQ(drive(u"reply \"? b\" %1"_s.arg(written)), u"");
  EXPECT_EQ((*drive).engines.Engine().Doit(u"? b"_s), u"a \"b\" \\ \n\r\t # ; 月");
  EXPECT_EQ((*drive).engines.Engine().Doit(u"? B"_s), u"");
}

TEST(Commands, TraceAndCountsTellOfBothHandles) {
  Drive drive;
  drive(
      u"engine two\nelements comet \"%1\"\nopen CDlgComet"_s.arg(QStringLiteral(VYN_ELEMENT_FILE)));
  drive(u"counts\ntrace all"_s);
  // The driver's own look at a control asks the dialog, and is none of the dialog's traffic.
  CCorVyn* second = (*drive).engines.SecondHandle();
  CCorVyn* first = (*drive).engines.CommandHandle();
  const auto send = [&](const QString& level) {
    drive(u"trace %1"_s.arg(level));
    testing::internal::CaptureStdout();
    first->Doit(u"? a\r\nb"_s);
    first->Doit(u""_s);
    second->Doit(u" ? a"_s);
    second->Doit(u"a = \"1\t\"\n; ? a"_s);
    std::fflush(stdout);
    return QString::fromStdString(testing::internal::GetCapturedStdout());
  };
  const QString changes = u"doit: \ndoit2:  ? a\ndoit2: a = \"1\t\"\\n; ? a\n"_s;
  EXPECT_EQ(send(u"all"_s), u"doit: ? a\\r\\nb\n"_s + changes);
  EXPECT_EQ(send(u"changes"_s), changes);
  EXPECT_EQ(send(u"off"_s), u"");
  EXPECT_EQ(drive(u"counts\ncounts"_s),
            u"sent: 3 queries, 9 changes\nsent: 0 queries, 0 changes\n");
}

TEST(Commands, EnginesAreChosenForTheDialogsToCome) {
  Drive drive;
  drive(u"trace all"_s);
  EXPECT_EQ(drive(u"engine none\nopen CDlgZodiacalLight\nclick 11102\nshow 11102\nclick 2"_s),
            u"opened: CDlgZodiacalLight \"黄道光・対日照\"\n"
            "control 11102: check \"黄道光(&Z)\" 1 enabled\nclosed: CDlgZodiacalLight cancel\n");
  EXPECT_EQ((*drive).engines.CommandHandle(), nullptr);
  drive(u"engine one"_s);
  EXPECT_NE((*drive).engines.CommandHandle(), nullptr);
  EXPECT_EQ((*drive).engines.SecondHandle(), nullptr);
  drive(u"observer 1\ntimesystem 2\nengine two"_s);
  EXPECT_NE((*drive).engines.SecondHandle(), (*drive).engines.CommandHandle());
  EXPECT_EQ((*drive).engines.CommandHandle()->GetLocationObject(), 1);
  EXPECT_EQ((*drive).engines.CommandHandle()->GetTimeSys(), 2);
}

TEST(Commands, TypingNotifiesAtEveryKeyAndPastingOnce) {
  Drive drive;
  drive(u"trace off\nopen CDlgElementManEdit new comet\ntype 1609 before"_s);
  auto* edit = static_cast<QLineEdit*>(drive.Dialog().GetDlgItem(1609));
  const int id = 1609;
  int changes = 0;
  QObject::connect(edit, &QLineEdit::textChanged, edit, [&changes] { ++changes; });
  drive(u"type %1 987"_s.arg(id));
  EXPECT_EQ(changes, 3);
  drive(u"paste %1 654"_s.arg(id));
  EXPECT_EQ(changes, 4);
  EXPECT_EQ(edit->text(), u"654");
  edit->setReadOnly(true);
  EXPECT_EQ(drive(u"type %1 1\npaste %1 2\npress %1 Delete\nshow %1"_s.arg(id)).section(u' ', 2),
            u"edit \"654\" - enabled readonly\n");
  EXPECT_EQ(changes, 4);
}

class Import : public testing::Test {
 protected:
  void SetUp() override {
    QFile file(QStringLiteral(VYN_ELEMENT_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray comets = file.readAll();
    Write(u"target.eld"_s, comets.first(417 * 2));
    Write(u"source.eld"_s, comets.mid(417 * 2, 417 * 10));
  }

  void Write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QString Imported(const QString& answers) {
    Drive drive;
    drive(u"trace off\nelements comet \"%1\"\nopen CDlgComet"_s.arg(
        folder_.filePath(u"target.eld"_s)));
    const QString printed =
        drive(answers + u"\nanswer file \"%1\"\nclick 1728\nprogress\nget Solar.Comet.Count"_s.arg(
                            folder_.filePath(u"source.eld"_s)));
    return printed.section(u'\n', -3);
  }

  QTemporaryDir folder_;
};

TEST_F(Import, TellsWhereTheBarStoodWhenItClosed) {
  EXPECT_EQ(Imported(u""_s), u"progress: \"インポート中\" 90\nvalue: Solar.Comet.Count = \"12\"\n");
}

TEST_F(Import, IsStoppedWhereTheAnswerSays) {
  EXPECT_EQ(Imported(u"answer progress stop 45"_s),
            u"progress: \"インポート中\" 50\nvalue: Solar.Comet.Count = \"7\"\n");
}

TEST_F(Import, CanBeStoppedBeforeAnything) {
  const QString printed = Imported(u"answer progress stop 0"_s);
  EXPECT_TRUE(printed.startsWith(u"progress: \"インポート中\" ")) << qPrintable(printed);
  EXPECT_LE(printed.section(u"= \""_s, 1, 1).section(u'"', 0, 0).toInt(), 3) << qPrintable(printed);
}

TEST_F(Import, AnAnswerIsForTheNextRunOnly) {
  EXPECT_EQ(Imported(u"answer progress stop 101"_s),
            u"progress: \"インポート中\" 90\nvalue: Solar.Comet.Count = \"12\"\n");
}

TEST(Commands, EveryCommandMayStandInAnAnswer) {
  const QTemporaryDir folder;
  const QString script =
      uR"(engine sky
trace changes
elements comet "%1"
open CDlgComet
answer CDlgElementManEdit
  copy "%1" "%2"
  get Solar.Comet.Count
  registry write k n inside
  set Solar.Comet.No1.Memo inside
  trace off
  answer box ok
  paste 1601 ""
  click 1
  answer CDlgElementManEdit # for the next one
    click 2
  end
  shot "editor inside"
  focus
  limit 1601
  observer 3
  remove "%2"
  paste 1601 "C/2100 X1"
  click 2
end
click 1725
registry read k n
get Solar.Comet.No1.Memo
click 1725)"_s.arg(QStringLiteral(VYN_ELEMENT_FILE), folder.filePath(u"copy.eld"_s));
  Drive drive;
  const QStringList printed = drive(script).split(u'\n', Qt::SkipEmptyParts);
  const QStringList expected = {
      u"opened: CDlgComet \"彗星\""_s,
      u"modal: CDlgElementManEdit \"軌道要素編集\""_s,
      u"value: Solar.Comet.Count = \"1687\""_s,
      u"box: "_s,
      u"shot: editor inside"_s,
      u"focus: "_s,
      u"limit 1601: 15"_s,
      u"closed: CDlgElementManEdit cancel"_s,
      u"registry: k n = \"inside\""_s,
      u"value: Solar.Comet.No1.Memo = \"inside\""_s,
      u"modal: CDlgElementManEdit \"軌道要素編集\""_s,
      u"closed: CDlgElementManEdit cancel"_s,
  };
  ASSERT_EQ(printed.size(), expected.size()) << qPrintable(printed.join(u'\n'));
  for (qsizetype i = 0; i < printed.size(); ++i) {
    EXPECT_TRUE(printed[i].startsWith(expected[i])) << qPrintable(printed[i]);
  }
  EXPECT_FALSE(QFile::exists(folder.filePath(u"copy.eld"_s)));
  EXPECT_FALSE(QImage((*drive).ShotsFolder() + u"/editor inside.png").isNull());
}

}  // namespace
}  // namespace vyn::drive
