// The open-file dialog as the dialogs ask for it.
#include "siblings/common_dialogs/open_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include "tests/core_link/person.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class OpenFile : public testing::Test {
 protected:
  OpenFile() {
    QFile file(folder.filePath(u"known.eld"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  }
  QString Ask(OpenFileQuestion question, std::vector<std::function<void(QWidget*)>> actions) {
    question.folder = folder.path();
    Person person(std::move(actions));
    return AskOpenFile(nullptr, question);
  }
  static void Choose(QWidget* window, const QString& name) {
    auto* dialog = static_cast<QFileDialog*>(window);
    dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(name);
    QMetaObject::invokeMethod(dialog, "accept");
  }

  QTemporaryDir folder;
};

TEST_F(OpenFile, ShowsTitleFolderAndEachFilterOnce) {
  const QString chosen = Ask(
      {.title = u"インポート"_s,
       .filter = u"軌道要素ファイル(*.eld)|*.eld|画像|*.png;*.jpg|すべて(*.*)|*.*|"_s},
      {[&](QWidget* window) {
        auto* dialog = qobject_cast<QFileDialog*>(window);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), u"インポート");
        EXPECT_EQ(dialog->directory(), QDir(folder.path()));
        EXPECT_EQ(dialog->nameFilters(), (QStringList{u"軌道要素ファイル(*.eld)"_s,
                                                      u"画像 (*.png *.jpg)"_s, u"すべて(*.*)"_s}));
        dialog->reject();
      }});
  EXPECT_EQ(chosen, QString());
}

TEST_F(OpenFile, TakesTheExtensionOnlyForANameWithoutOne) {
  const OpenFileQuestion question{.filter = u"要素|*.eld|"_s, .defaultExtension = u"eld"_s};
  EXPECT_EQ(Ask(question, {[](QWidget* window) { Choose(window, u"known"_s); }}),
            folder.filePath(u"known.eld"_s));
  EXPECT_EQ(Ask(question, {[](QWidget* window) { Choose(window, u"known.eld"_s); }}),
            folder.filePath(u"known.eld"_s));
}

TEST_F(OpenFile, AFileThatMustExistIsAskedForUntilItDoes) {
  const QString chosen =
      Ask({.mustExist = true}, {[](QWidget* window) { Choose(window, u"unknown.eld"_s); },
                                [](QWidget* window) {
                                  auto* box = qobject_cast<QMessageBox*>(window);
                                  ASSERT_NE(box, nullptr);
                                  box->accept();
                                },
                                [](QWidget* window) { Choose(window, u"known.eld"_s); }});
  EXPECT_EQ(chosen, folder.filePath(u"known.eld"_s));
  EXPECT_EQ(Ask({.mustExist = false}, {[](QWidget* window) { Choose(window, u"unknown.eld"_s); }}),
            folder.filePath(u"unknown.eld"_s));
}

}  // namespace
}  // namespace vyn
