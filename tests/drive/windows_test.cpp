// How modal windows are answered, and what is printed of them.
#include <gmock/gmock.h>

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "major_bodies/solar_dialog.h"
#include "tools/vyn-drive/session.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

/// Runs lines, then something that brings windows up, and returns what was printed.
class Windows : public testing::Test {
 protected:
  template <class Action>
  std::string Printed(const QString& script, Action action) {
    lines_ = ReadLines(script);
    testing::internal::CaptureStdout();
    session_.RunScript(lines_);
    action();
    return testing::internal::GetCapturedStdout();
  }

  std::vector<ScriptLine> lines_;
  Session session_{u"test.drive"_s, u"."_s};
};

TEST_F(Windows, BoxesAreAnsweredInOrderAndThenByTheirDefaultButton) {
  QList<int> pressed;
  const std::string printed = Printed(u"answer box yes\nanswer box cancel"_s, [&] {
    pressed += QMessageBox::question(nullptr, u"削除"_s, u"\"1P\"を削除しますか\n本当に"_s,
                                     QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    pressed += QMessageBox::warning(nullptr, u"b"_s, u"c"_s, QMessageBox::Ok | QMessageBox::Cancel);
    pressed += QMessageBox::question(nullptr, u"d"_s, u"e"_s, QMessageBox::Yes | QMessageBox::No,
                                     QMessageBox::No);
    pressed += QMessageBox::critical(nullptr, u"f"_s, u"g"_s);
    QMessageBox plain(QMessageBox::NoIcon, u"h"_s, u"i"_s, QMessageBox::Ok | QMessageBox::Cancel);
    pressed += plain.exec();
  });
  EXPECT_EQ(pressed, QList<int>({QMessageBox::Yes, QMessageBox::Cancel, QMessageBox::No,
                                 QMessageBox::Ok, QMessageBox::Ok}));
  EXPECT_EQ(printed,
            R"(box: question "削除" "\"1P\"を削除しますか\n本当に" -> yes
box: warning "b" "c" -> cancel
box: question "d" "e" -> no
box: critical "f" "g" -> ok
box: plain "h" "i" -> ok
)");
}

TEST_F(Windows, FileDialogsGetAPathOrAreCancelled) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"a b.eld"_s);
  QFile(path).open(QIODevice::WriteOnly);
  const QString script =
      u"answer file \"%1\"\nanswer file cancel\nanswer file \"%1.new\""_s.arg(path);
  QStringList chosen;
  const std::string printed = Printed(script, [&] {
    const QString filter = u"軌道要素ファイル(*.eld)"_s;
    chosen += QFileDialog::getOpenFileName(nullptr, u"インポート"_s, folder.path(), filter);
    chosen += QFileDialog::getOpenFileName(nullptr, u"開く"_s, folder.path());
    chosen += QFileDialog::getSaveFileName(nullptr, u"保存"_s, folder.path(), filter);
  });
  EXPECT_EQ(chosen, QStringList({path, QString(), path + u".new"}));
  const QString inFolder = u"\"%1\" -> "_s.arg(folder.path());
  const QString expected = u"file: \"インポート\" \"軌道要素ファイル(*.eld)\" "_s + inFolder +
                           path + u"\nfile: \"開く\" \"\" " + inFolder + u"(cancel)" +
                           u"\nfile: \"保存\" \"軌道要素ファイル(*.eld)\" " + inFolder + path +
                           u".new\n";
  EXPECT_EQ(printed, expected.toStdString());
}

TEST_F(Windows, LinesAreCarriedOutInsideAModalDialog) {
  const QString script =
      uR"(trace changes
answer CDlgSolar
  show 11106
  click 11106
  answer color
  click 11183
  set answered TRUE
  click 1
end
answer CDlgSolar
  close
end)"_s;
  QList<int> results;
  const std::string printed = Printed(script, [&] {
    CDlgSolar dialog(session_.engines.CommandHandle(), nullptr, nullptr);
    results += dialog.DoModal();
    results += dialog.DoModal();
  });
  EXPECT_EQ(results, QList<int>({1, 2}));
  EXPECT_EQ(session_.engines.Engine().Property(u"answered"_s), u"TRUE");
  const QString cloudOn =
      u"doit: solar.MainBelt.Visible = FALSE;solar.KuiperBelt.Visible = FALSE;"
      "solar.HabitableZone.Visible = FALSE;solar.OortCloud.Visible = TRUE;"
      "solar.OortCloud.AutoFade.Visible = FALSE;CosmicScale.Visible = FALSE;"_s;
  const QStringList expected = {
      u"modal: CDlgSolar \"太陽系その他\""_s,
      u"control 11106: check \"オールトの雲(&O)\" 0 enabled"_s,
      cloudOn + u";Show Sky",
      u"color: \"Solar.MainBelt.Color\" \"\" \"\""_s,
      u"closed: CDlgSolar ok"_s,
      u"modal: CDlgSolar \"太陽系その他\""_s,
      cloudOn,
      u"closed: CDlgSolar cancel"_s,
  };
  EXPECT_EQ(printed, expected.join(u'\n').toStdString() + '\n');
}

TEST_F(Windows, WindowsWithoutAnAnswerEndTheRun) {
  // The toolkit's threads do not survive a mere fork.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const struct {
    const char16_t* script;
    void (*action)();
    const char* reason;
  } cases[] = {
      {u"wait", [] { QFileDialog::getOpenFileName(nullptr, u"t"_s); },
       "a modal window that nobody answers: file dialog \"t\"\n$"},
      {u"wait", [] { QDialog().exec(); }, "a modal window that nobody answers: QDialog\n$"},
      {u"answer box yes", [] { QMessageBox::warning(nullptr, u"b"_s, u"c"_s); },
       "the message box \"b\" \"c\" has no button yes\n$"},
      {u"answer file missing.eld", [] { QFileDialog::getOpenFileName(nullptr, u"t"_s); },
       "the answer leaves the window open: QFileDialog\n$"},
  };
  for (const auto& [script, action, reason] : cases) {
    lines_ = ReadLines(QString::fromUtf16(script));
    const auto run = [&] {
      session_.RunScript(lines_);
      action();
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(2), std::string("error: test.drive:1: ") + reason);
  }
}

}  // namespace
}  // namespace vyn::drive
