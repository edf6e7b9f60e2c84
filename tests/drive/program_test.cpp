// The program as it is started: exit status, errors, several scripts.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using namespace Qt::StringLiterals;

struct Outcome {
  int status;
  QString output;
  QString errors;
};

Outcome RunDrive(
    const QStringList& arguments, const QString& input = {},
    const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(VYN_DRIVE), arguments);
  process.write(input.toUtf8());
  process.closeWriteChannel();
  process.waitForFinished();
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

TEST(AProgramRun, EndsAtTheFirstLineThatCannotBeCarriedOut) {
  const struct {
    const char16_t* script;
    const char16_t* error;
  } cases[] = {
      {u"# first\n\ndance 1", u"3: unknown word: dance"},
      {u"end", u"1: no answer to end here: end"},
      {u"set a \"b", u"1: a quote is left open"},
      {u"set a \"b\\", u"1: a quote is left open"},
      {u"set a \"b\"c", u"1: no blank behind the closing quote"},
      {u"set a \"\\x\"", u"1: unknown escape: \\x"},
      {u"set a", u"1: missing argument: TEXT"},
      {u"wait a", u"1: one word too many: a"},
      {u"engine three", u"1: unknown word: three (none, one, two or sky)"},
      {u"observer Moon", u"1: not a whole number: Moon (N)"},
      {u"elements comet missing.eld", u"1: no element file can be read there: missing.eld"},
      {u"copy missing a", u"1: cannot copy missing to a"},
      {u"remove missing", u"1: cannot remove missing"},
      {u"registry write a b", u"1: missing argument: TEXT"},
      {u"answer box maybe", u"1: unknown button: maybe"},
      {u"answer wish ok", u"1: unknown window: wish"},
      {u"wait\nanswer CDlgComet\nclick 1", u"2: the answer has no end"},
      {u"open CDlgMars", u"1: unknown dialog class: CDlgMars"},
      {u"open CDlgSun Mars", u"1: one word too many: Mars"},
      {u"show 1", u"1: no dialog is open"},
      {u"open CDlgSun\nclick 1\nclick 1", u"3: no dialog is open"},
      {u"open CDlgSun\nclick 4711", u"2: no such control in CDlgSun: 4711"},
      {u"open CDlgSun\nclick one", u"2: not a whole number: one (ID)"},
      {u"open CDlgSun\nclick 1033",
       u"2: a modal window that nobody answers: colour-and-font dialog \"Solar.Sun.Name.Color\""},
      {u"open CDlgSun\npress 1001 Elbow", u"2: unknown key: Elbow"},
      {u"open CDlgSun\npaste 1001 a", u"2: the control takes no text"},
      {u"open CDlgSun\nspin 1001 up", u"2: not a spin button: 1001"},
      {u"open CDlgSun\ncell 1001 0 0", u"2: the control has no rows: 1001"},
      {u"open CDlgSun\nmouse 1001 press x 1", u"2: not a number: x (X)"},
      {u"open CDlgSun\ncall Dance", u"2: unknown operation: Dance"},
      {u"open CDlgSun\nrange 1001", u"2: control 1001 has no range"},
      {u"open CDlgSun\nlimit 1001", u"2: control 1001 has no text limit"},
      {u"open CDlgSun\nlist 1001", u"2: control 1001 has no rows"},
      {u"open CDlgSun\nshow 0", u"2: not a control: 0"},
      {u"progress", u"1: no import has run"},
  };
  for (const auto& [script, error] : cases) {
    const Outcome outcome = RunDrive({u"-"_s}, QString::fromUtf16(script));
    EXPECT_EQ(outcome.status, 2) << qPrintable(QString::fromUtf16(script));
    EXPECT_EQ(outcome.errors, u"error: -:"_s + QString::fromUtf16(error) + u'\n');
  }
}

TEST(AProgramRun, ShowsWhatHappenedBeforeItFailed) {
  const Outcome outcome = RunDrive({u"-"_s}, u"set a 1\nget a\ndance\nget a"_s);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, u"value: a = \"1\"\n");
}

TEST(AProgramRun, StartsEachScriptAfreshAndStopsAtABadOne) {
  const QTemporaryDir folder;
  const QString first = folder.filePath(u"first.drive"_s);
  QFile file(first);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  // A byte order mark and Windows line ends are passed over.
  file.write("\xEF\xBB\xBFset a 1\r\nregistry write k n x\r\ntrace off\r\nopen CDlgSun\r\n");
  file.close();
  const QString second = u"get a\nregistry read k n\nopen CDlgZodiacalLight\nclose"_s;
  const Outcome outcome = RunDrive({first, u"-"_s, u"missing.drive"_s, first}, second);
  EXPECT_EQ(outcome.output,
            uR"(opened: CDlgSun "太陽・月"
value: a = ""
registry: k n = (none)
opened: CDlgZodiacalLight "黄道光・対日照"
doit: solar.ZodiacalLight.Visible = FALSE;solar.CounterGlow.Visible = FALSE;
closed: CDlgZodiacalLight cancel
)");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.errors, u"error: missing.drive:0: the script cannot be read\n");
}

TEST(AProgramRun, WorksOnACopyOfAnElementFile) {
  const QTemporaryDir folder;
  const QString script =
      uR"(copy "%1" "%2"
elements comet "%2"
get Solar.Comet.Count
copy "%2" "%2"
remove "%2"
remove "%2")"_s.arg(QStringLiteral(VYN_ELEMENT_FILE), folder.filePath(u"a b.eld"_s));
  const Outcome outcome = RunDrive({u"-"_s}, script);
  EXPECT_TRUE(outcome.output.startsWith(u"value: Solar.Comet.Count = \""));
  EXPECT_GT(outcome.output.section(u'"', 1, 1).toInt(), 0);
  EXPECT_TRUE(outcome.errors.startsWith(u"error: -:6: cannot remove "));
}

TEST(AProgramRun, WithoutAScriptSaysHowItIsUsed) {
  for (const QStringList& arguments : {QStringList{}, {u"--shots"_s}, {u"--dance"_s, u"-"_s}}) {
    const Outcome outcome = RunDrive(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.errors.startsWith(u"usage: vyn-drive"));
  }
}

TEST(AProgramRun, WithoutAPlatformSaysSo) {
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"QT_QPA_PLATFORM"_s, u"nowhere"_s);
  const Outcome outcome = RunDrive({u"-"_s}, {}, environment);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.errors.contains(u"no Qt platform plugin could be initialized"));
}

TEST(AProgramRun, TakesPicturesAtTheScaleOfTheScreen) {
  const QTemporaryDir folder;
  const QString shots = folder.filePath(u"new/shots"_s);
  auto environment = QProcessEnvironment::systemEnvironment();
  const auto picture = [&](const QString& scale) {
    environment.insert(u"QT_SCALE_FACTOR"_s, scale);
    const Outcome outcome =
        RunDrive({u"--shots"_s, shots, u"-"_s}, u"open CDlgSun\nshot sun"_s, environment);
    EXPECT_EQ(outcome.output, u"opened: CDlgSun \"太陽・月\"\nshot: sun\n");
    return QImage(QDir(shots).filePath(u"sun.png"_s));
  };
  const QImage once = picture(u"1"_s);
  EXPECT_GT(once.width(), 200);
  EXPECT_EQ(picture(u"2"_s).size(), once.size() * 2);
}

}  // namespace
