// The element windows as the code that opens them meets them.
#include <functional>

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "elements/element_import_duplicate_dialog.h"
#include "elements/element_import_progress_dialog.h"
#include "elements/element_man_edit_dialog.h"
#include "elements/element_writer.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kImportingCaption = 13389;

void Click(const CVynDialog& dialog, int id) {
  QTest::mouseClick(dialog.GetDlgItem(id), Qt::LeftButton, {}, {8, 8});
}

TEST(ElementImportProgress, DisablesItsParentFromTheFirstStepToTheEnd) {
  QWidget parent;
  CDlgElementImportProgress progress(kImportingCaption, &parent);
  ASSERT_TRUE(progress.Create());
  EXPECT_EQ(progress.windowTitle(), u"インポート中"_s);
  EXPECT_TRUE(parent.isEnabled());
  EXPECT_TRUE(progress.SetProgress(40));
  EXPECT_FALSE(parent.isEnabled());
  EXPECT_TRUE(progress.isEnabled()) << "its own button must work";
  EXPECT_EQ(static_cast<QProgressBar*>(progress.GetDlgItem(1940))->value(), 40);
  progress.DestroyWindow();
  EXPECT_TRUE(parent.isEnabled());
  EXPECT_FALSE(progress.isVisible());
}

TEST(ElementImportProgress, StopsByItsButtonEscAndTheCloseBoxButStaysOpen) {
  CDlgElementImportProgress progress(kImportingCaption, nullptr);
  const std::function<void()> ways[] = {
      [&] { Click(progress, 1941); },
      [&] { QTest::keyClick(&progress, Qt::Key_Escape); },
      [&] { progress.close(); },
  };
  for (const auto& stop : ways) {
    ASSERT_TRUE(progress.Create());
    EXPECT_TRUE(progress.SetProgress(1));
    stop();
    EXPECT_FALSE(progress.SetProgress(2));
    EXPECT_TRUE(progress.isVisible());
    progress.DestroyWindow();
  }
}

TEST(ElementImportProgress, GivesTheParentBackWhenARunBreaksOff) {
  QWidget parent;
  {
    CDlgElementImportProgress progress(kImportingCaption, &parent);
    ASSERT_TRUE(progress.Create());
    progress.SetProgress(0);
  }
  EXPECT_TRUE(parent.isEnabled());
}

TEST(ElementImportDuplicate, CanBeAnsweredWhileTheRunDisablesItsParent) {
  QWidget parent;
  CDlgElementImportProgress progress(kImportingCaption, &parent);
  ASSERT_TRUE(progress.Create());
  progress.SetProgress(10);
  CDlgElementImportDuplicate question(CDlgElementImportDuplicate::kImportTemplate, &parent);
  QTimer::singleShot(0, &question, [&] {
    Click(question, 1928);
    Click(question, kOkButton);
  });
  EXPECT_EQ(question.DoModal(), kOkButton);
  EXPECT_EQ(question.Choice(), 2);
}

TEST(ElementImportDuplicate, StartsAnewAtEveryOpening) {
  CDlgElementImportDuplicate question(CDlgElementImportDuplicate::kUpdateTemplate, nullptr);
  for (const int radio : {1929, 1926}) {
    QTimer::singleShot(0, &question, [&] {
      EXPECT_TRUE(static_cast<QRadioButton*>(question.GetDlgItem(1926))->isChecked());
      Click(question, radio);
      Click(question, kOkButton);
    });
    EXPECT_EQ(question.DoModal(), kOkButton);
    EXPECT_EQ(question.Choice(), radio - 1926);
  }
}

TEST(ElementManEdit, ClosesAtOnceOnWhatIsNoObject) {
  CDlgElementManEdit editor(nullptr, nullptr, nullptr);
  EXPECT_EQ(editor.DoModal(), kCancelButton);
  editor.SetPages({BlankRecord('N')});
  EXPECT_EQ(editor.DoModal(), kCancelButton);
}

/// Answers with views of one record, as the engine does.
class OneComet final : public CCorVyn {
 public:
  OneComet() { WriteText(record, ElementField::Identifier, u"1P"); }

  QString Doit(const QString&) override { return reply; }
  QString ObjNumToName(int) const override { return {}; }
  int GetLocationObject() const override { return 4; }
  int GetTimeSys() const override { return 0; }

  QByteArray record = TemplateRecord('C', 2020);
  std::uint32_t firstRecord = 0;
  QString reply = u" 1, 0x%1,1, 0x%2"_s.arg(quintptr(record.constData()), 0, 16)
                      .arg(quintptr(&firstRecord), 0, 16);
};

/// The message that OK brings; empty when the editor closed.
QString MessageOfOk(CDlgElementManEdit& editor) {
  QString message;
  QTimer::singleShot(0, &editor, [&] {
    QTimer::singleShot(0, &editor, [&] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        message = box->text();
        box->accept();
      }
    });
    Click(editor, kOkButton);
    if (!message.isEmpty()) Click(editor, kCancelButton);
  });
  editor.DoModal();
  return message;
}

TEST(ElementManEdit, RefusesTheIdentifierOfAnotherObjectAlone) {
  OneComet engine;
  CDlgElementManEdit editor(&engine, nullptr, nullptr);
  editor.SetPages({engine.record});
  EXPECT_EQ(MessageOfOk(editor), u"この認識符号はすでに使用されています。"_s);
  editor.SetObjectNumber(0);
  EXPECT_EQ(MessageOfOk(editor), QString());
  // An engine that gives no views knows no other object.
  editor.SetObjectNumber(-1);
  for (const auto& reply : {u""_s, u"1, 0x10, 1"_s, u"x, 0x100, 1, 0x100"_s, u"1, 0, 1, 0"_s}) {
    engine.reply = reply;
    EXPECT_EQ(MessageOfOk(editor), QString()) << reply.toStdString();
  }
}

}  // namespace
}  // namespace vyn
