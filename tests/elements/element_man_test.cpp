// The element manager and the import with their real windows, on the reference engine: what a
// person does in them, what is then in the file, and what the engine makes of it.
#include "elements/element_man.h"

#include <functional>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "elements/element_import.h"
#include "elements/element_man_edit_dialog.h"
#include "engine/reference_engine.h"
#include "engine/watched_cor_vyn.h"
#include "resources/string_table.h"
#include "tests/core_link/person.h"
#include "tests/elements/element_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

CVynDialog& DialogIn(QWidget* window) { return *qobject_cast<CVynDialog*>(window); }

void Type(QWidget* window, int id, const QString& text) {
  auto* edit = static_cast<QLineEdit*>(DialogIn(window).GetDlgItem(id));
  edit->setText(text);
}

void Click(QWidget* window, int id) {
  QTest::mouseClick(DialogIn(window).GetDlgItem(id), Qt::LeftButton, {}, {8, 8});
}

constexpr int kOk = 1;
constexpr int kCancel = 2;

/// Expects a message box and presses its button.
std::function<void(QWidget*)> Message(QMessageBox::Icon icon, const QString& text) {
  return [icon, text](QWidget* window) {
    auto* box = qobject_cast<QMessageBox*>(window);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), icon);
    EXPECT_EQ(box->text().toStdString(), text.toStdString());
    EXPECT_EQ(box->windowTitle().toStdString(), "彗星");
    box->defaultButton() != nullptr ? box->defaultButton()->click() : box->accept();
  };
}

QByteArray RealComet() {
  QFile file(QStringLiteral(VYN_DATA_DIR "/comets.eld"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.read(kElementRecordSize);
}

ElementRecords WholeObject(const QString& identifier, int pages) {
  static const QByteArray comet = RealComet();
  ElementRecords records;
  for (int page = 0; page < pages; ++page) {
    QByteArray record = comet;
    WriteText(record, ElementField::Identifier, identifier);
    WriteText(record, ElementField::JapaneseName, QString(identifier + u"彗星"_s));
    if (page > 0) record[0] = '+';
    records.push_back(record);
  }
  return records;
}

class ElementManTest : public ElementCase {
 protected:
  ElementManTest() { window_.setWindowTitle(u"彗星"_s); }

  void Load(const std::vector<ElementRecords>& objects) {
    path_ = Write(u"comets.eld"_s, Joined(objects));
    engine_.Doit(u"Solar.Comet.File = \"%1\""_s.arg(path_));
    ASSERT_EQ(engine_.Doit(u"? Solar.Comet.Count"_s), QString::number(objects.size()));
  }

  QByteArray File() const { return Read(u"comets.eld"_s); }
  CElementMan Manager() { return CElementMan(1, &engine_, nullptr, &window_); }

  std::string EngineIdentifiers() {
    QString all;
    const int count = engine_.Doit(u"? Solar.Comet.Count"_s).toInt();
    for (int i = 1; i <= count; ++i) {
      all += engine_.Doit(u"? Solar.Comet.No%1.ID"_s.arg(i)) + u' ';
    }
    return all.toStdString();
  }

  QWidget window_;
  ReferenceEngine engine_;
  QString path_;
};

QByteArray Marked(QByteArray record) { return record.replace(414, 1, "*"); }

TEST_F(ElementManTest, EditingWritesTheObjectMarkedAndOnlyWhenSomethingChanged) {
  const auto objects =
      std::vector{WholeObject(u"a"_s, 1), WholeObject(u"b"_s, 2), WholeObject(u"c"_s, 1)};
  Load(objects);
  {
    Person person({[](QWidget* editor) { Click(editor, kCancel); },
                   [](QWidget* editor) { Click(editor, kOk); }});
    EXPECT_EQ(Manager().EditObject(1), 0);
    EXPECT_EQ(Manager().EditObject(1), 0);
  }
  EXPECT_EQ(File(), Joined(objects));
  Person person({[](QWidget* editor) {
    Type(editor, 1641, u"12"_s);
    Click(editor, kOk);
  }});
  EXPECT_EQ(Manager().EditObject(1), 1);
  ElementRecords edited = objects[1];
  WriteNumber(edited[0], ElementField::AbsoluteMagnitude, u"12"_s);
  edited[0] = Marked(edited[0]);
  EXPECT_EQ(File(), Joined({objects[0], edited, objects[2]}));
}

TEST_F(ElementManTest, PagesAreAddedAndTheEngineFollows) {
  const auto objects = std::vector{WholeObject(u"a"_s, 1), WholeObject(u"b"_s, 1)};
  Load(objects);
  Person person({[](QWidget* editor) {
    Type(editor, 1601, u"aa"_s);
    Click(editor, 1670);
    Click(editor, kOk);
  }});
  EXPECT_EQ(Manager().EditObject(0), 1);
  const QByteArray file = File();
  ASSERT_EQ(file.size(), 3 * kElementRecordSize);
  EXPECT_EQ(file.at(0), 'C');
  EXPECT_EQ(file.at(414), '*');
  EXPECT_EQ(file.at(417), '+');
  EXPECT_EQ(file.mid(417 + 188, 15), file.mid(188, 15));
  EXPECT_EQ(file.last(417), objects[1][0]);
  EXPECT_EQ(Files(), QStringList{u"comets.eld"_s});
  engine_.Doit(u"Solar.Comet.No1.DataUpdate = True"_s);
  EXPECT_EQ(EngineIdentifiers(), "aa b ");
}

TEST_F(ElementManTest, ANewObjectIsAppendedMarked) {
  Load({WholeObject(u"a"_s, 1)});
  {
    Person person({[](QWidget* editor) { Click(editor, kCancel); }});
    EXPECT_EQ(Manager().AddNewObject(), 0);
  }
  Person person({[](QWidget* editor) {
    Type(editor, 1601, u"new"_s);
    Click(editor, kOk);
  }});
  EXPECT_EQ(Manager().AddNewObject(), 1);
  const int year = QDateTime::currentDateTimeUtc().date().year();
  QByteArray expected = TemplateRecord('C', year);
  WriteText(expected, ElementField::Identifier, u"new"_s);
  EXPECT_EQ(File().last(417).left(60), Marked(expected).left(60));
  EXPECT_EQ(File().last(417).mid(188, 15), Marked(expected).mid(188, 15));
  EXPECT_EQ(File().last(417).last(3), "*\r\n");
  engine_.Doit(u"Solar.Comet.DataAdd = True"_s);
  EXPECT_EQ(EngineIdentifiers(), "a new ");
}

TEST_F(ElementManTest, DeletesFirstMiddleAndLastObjects) {
  const auto objects = std::vector{WholeObject(u"a"_s, 2), WholeObject(u"b"_s, 3),
                                   WholeObject(u"c"_s, 1), WholeObject(u"d"_s, 2)};
  Load(objects);
  EXPECT_EQ(Manager().DeleteObject(3), 1);
  EXPECT_EQ(File(), Joined({objects[0], objects[1], objects[2]}));
  engine_.Doit(u"Solar.Comet.No4.DataRemove = True"_s);
  EXPECT_EQ(Manager().DeleteObject(1), 1);
  engine_.Doit(u"Solar.Comet.No2.DataRemove = True"_s);
  EXPECT_EQ(EngineIdentifiers(), "a c ");
  EXPECT_EQ(Manager().DeleteObject(0), 1);
  EXPECT_EQ(File(), objects[2][0]);
}

TEST_F(ElementManTest, TheOnlyObjectIsDeletedAndAnotherOneTakesItsPlace) {
  Load({WholeObject(u"a"_s, 2)});
  EXPECT_EQ(Manager().DeleteObject(0), 1);
  engine_.Doit(u"Solar.Comet.No1.DataRemove = True"_s);
  EXPECT_EQ(File(), QByteArray());
  EXPECT_EQ(engine_.Doit(u"? Solar.Comet.Count; ? Solar.COMET.DataPtr"_s), u"0"_s);
  Person person({[](QWidget* editor) {
    Type(editor, 1601, u"new"_s);
    Click(editor, kOk);
  }});
  EXPECT_EQ(Manager().AddNewObject(), 1);
  engine_.Doit(u"Solar.Comet.DataAdd = True"_s);
  EXPECT_EQ(EngineIdentifiers(), "new ");
  std::int32_t flags = 0;
  const QString source = Write(u"source.eld"_s, Joined({WholeObject(u"b"_s, 3)}));
  EXPECT_EQ(CElementImport(1, &engine_).ImportElement(source, 0, &flags, &window_), 1);
  engine_.Doit(u"Solar.Comet.DataAdd = True"_s);
  EXPECT_EQ(EngineIdentifiers(), "new b ");
}

TEST_F(ElementManTest, WithoutItsFirstPageAnObjectBeginsWithTheNext) {
  Load({WholeObject(u"a"_s, 1), WholeObject(u"b"_s, 3), WholeObject(u"c"_s, 1)});
  ElementRecords pages = WholeObject(u"b"_s, 3);
  WriteText(pages[1], ElementField::Memo, u"second"_s);
  WriteText(pages[2], ElementField::Memo, u"third"_s);
  Load({WholeObject(u"a"_s, 1), pages, WholeObject(u"c"_s, 1)});
  Person person({[](QWidget* editor) {
    Click(editor, 1671);
    Click(editor, kOk);
  }});
  EXPECT_EQ(Manager().EditObject(1), 1);
  const QByteArray first = Marked(pages[1]).replace(0, 1, "C");
  EXPECT_EQ(File(), Joined({WholeObject(u"a"_s, 1), {first, pages[2]}, WholeObject(u"c"_s, 1)}));
}

/// The file is not what the person has seen: nothing is written.
TEST_F(ElementManTest, AnObjectThatChangesBehindTheEditorIsKept) {
  Load({WholeObject(u"a"_s, 1), WholeObject(u"b"_s, 1)});
  const std::vector<ElementRecords> others[] = {
      {WholeObject(u"b"_s, 1)},
      {WholeObject(u"a"_s, 2), WholeObject(u"b"_s, 1)},
      {},
  };
  for (const auto& objects : others) {
    Load({WholeObject(u"a"_s, 1), WholeObject(u"b"_s, 1)});
    Person person({[&](QWidget* editor) {
                     QFile::remove(path_);  // the engine has the old file in memory
                     Write(u"comets.eld"_s, Joined(objects));
                     Type(editor, 1641, u"12"_s);
                     Click(editor, kOk);
                   },
                   Message(QMessageBox::Information, LoadString(13351))});
    EXPECT_EQ(Manager().EditObject(0), 0);
    EXPECT_EQ(File(), Joined(objects));
    EXPECT_EQ(Files(), QStringList{u"comets.eld"_s});
  }
}

TEST_F(ElementManTest, ANewObjectNeedsAFile) {
  Load({WholeObject(u"a"_s, 1)});
  QFile::remove(path_);
  const auto typeNew = [](QWidget* editor) {
    Type(editor, 1601, u"new"_s);
    Click(editor, kOk);
  };
  const auto cannotChange = Message(QMessageBox::Information, LoadString(13351));
  Person person({typeNew, cannotChange, typeNew, cannotChange});
  EXPECT_EQ(Manager().AddNewObject(), 0);
  EXPECT_EQ(Files(), QStringList());
  EXPECT_EQ(CElementMan(1, nullptr, nullptr, &window_).AddNewObject(), 0) << "without an engine";
}

TEST_F(ElementManTest, AsksTheEngineForItsKindInTurn) {
  QByteArray planet = TemplateRecord('M', 2020);
  WriteText(planet, ElementField::Identifier, u"1"_s);
  const QString path = Write(u"planets.eld"_s, planet + planet);
  const QString empty = Write(u"empty.eld"_s, {});
  engine_.Doit(u"Solar.MinorPlanet.File = \"%1\""_s.arg(path));
  QStringList commands;
  WatchedCorVyn watched(engine_, [&](const QString& command) { commands += command; });
  CElementMan manager(0, &watched, nullptr, &window_);
  const auto sent = [&commands] { return std::exchange(commands, {}).join(u'|').toStdString(); };
  EXPECT_EQ(manager.DeleteObject(1), 1);
  EXPECT_EQ(sent(), "? Solar.MINORPLANET.DataPtr|? solar.MINORPLANET.file");
  engine_.Doit(u"Solar.MinorPlanet.No2.DataRemove = True"_s);
  Person person({[](QWidget* editor) { Click(editor, kCancel); },
                 [](QWidget* editor) {
                   Click(editor, 1611);
                   Type(editor, 1601, u"2"_s);
                   Click(editor, kOk);
                 },
                 Message(QMessageBox::Warning, FilledString(13355, {u"小惑星"_s, empty}))});
  EXPECT_EQ(manager.EditObject(0), 0);
  EXPECT_EQ(sent(), "? Solar.MINORPLANET.DataPtr|? solar.MINORPLANET.file");
  EXPECT_EQ(manager.AddNewObject(), 1);
  EXPECT_EQ(Read(u"planets.eld"_s).at(417), 'M');
  EXPECT_TRUE(sent().ends_with("|? solar.MINORPLANET.file")) << "once the editor is closed";
  EXPECT_EQ(manager.CountObjects(empty), 0);
  EXPECT_EQ(sent(), "");
  EXPECT_EQ(manager.CheckElementFile(empty), 1);
  EXPECT_EQ(sent(), "? solar.MINORPLANET.file");
  EXPECT_EQ(CElementImport(0, &watched).GetFileName(), path);
  EXPECT_EQ(sent(), "? solar.MINORPLANET.file");
}

TEST_F(ElementManTest, WhatTheEngineHasNotLoadedIsNotTouched) {
  Load({WholeObject(u"a"_s, 1), WholeObject(u"b"_s, 1)});
  // Another program takes an object out; the engine has not been told.
  Write(u"comets.eld"_s, Joined({WholeObject(u"b"_s, 1)}));
  Person person({Message(QMessageBox::Information, LoadString(13351)),
                 Message(QMessageBox::Information, LoadString(13351))});
  EXPECT_EQ(Manager().DeleteObject(0), 0);
  EXPECT_EQ(Manager().DeleteObject(7), 0);
  EXPECT_EQ(File(), Joined({WholeObject(u"b"_s, 1)}));
}

TEST_F(ElementManTest, WithoutElementsThereIsAMessage) {
  Person person({Message(QMessageBox::Information, LoadString(13350)),
                 Message(QMessageBox::Information, LoadString(13350))});
  EXPECT_EQ(Manager().EditObject(0), 0);
  EXPECT_EQ(Manager().DeleteObject(0), 0);
}

TEST_F(ElementManTest, TellsWhyAFileHoldsNoObject) {
  const QString empty = Write(u"empty.eld"_s, {});
  const QString junk = Write(u"junk.eld"_s, "junk");
  const QString missing = PathOf(u"missing.eld"_s);
  EXPECT_EQ(Manager().CountObjects(junk), 0);
  EXPECT_EQ(Manager().CountObjects(missing), 0);
  {
    Person person({Message(QMessageBox::Warning, FilledString(13352, {u"彗星"_s, junk})),
                   Message(QMessageBox::Warning, FilledString(13352, {u"彗星"_s, u"不明"_s}))});
    EXPECT_EQ(Manager().CheckElementFile(junk), 0);
    EXPECT_EQ(Manager().CheckElementFile({}), 0);
  }
  Load({WholeObject(u"a"_s, 1)});
  EXPECT_EQ(Manager().CountObjects(path_), 1);
  Person person({Message(QMessageBox::Warning, FilledString(13353, {u"彗星"_s, missing})),
                 Message(QMessageBox::Warning, FilledString(13354, {u"彗星"_s, junk})),
                 Message(QMessageBox::Warning, FilledString(13355, {u"彗星"_s, empty}))});
  EXPECT_EQ(Manager().CheckElementFile(missing), 0);
  EXPECT_EQ(Manager().CheckElementFile(junk), 0);
  EXPECT_EQ(Manager().CheckElementFile(empty), 1);
}

TEST_F(ElementManTest, ReadsWhereTheElementsAre) {
  struct Case {
    QString reply;
    bool isRead;
  };
  const Case cases[] = {
      {u"  2, 0x10, 1,   0x20"_s, true}, {u"2,0x10,1,0x20"_s, true}, {u"x, 0x10, 1, 0x20"_s, false},
      {u"2, 10, 1, 0x20"_s, false},      {u"2, 0x10, 1"_s, false},   {u""_s, false},
      {u"2, 0x10, -1, 0x20"_s, false},
  };
  for (const Case& row : cases) {
    engine_.SetProperty(u"Solar.COMET.DataPtr"_s, row.reply);
    std::int64_t records = 0;
    std::int64_t objects = 0;
    const char* elements = nullptr;
    const std::uint32_t* firstRecords = nullptr;
    EXPECT_EQ(Manager().GetElementIndex(&records, &elements, &objects, &firstRecords), row.isRead)
        << row.reply.toStdString();
    if (row.isRead) {
      EXPECT_EQ(records, 2);
      EXPECT_EQ(reinterpret_cast<quintptr>(firstRecords), 0x20U);
    }
  }
}

TEST_F(ElementManTest, ImportingAsksInWindows) {
  Load({WholeObject(u"1P"_s, 1), {Marked(WholeObject(u"2P"_s, 1)[0])}});
  const QString source =
      Write(u"source.eld"_s,
            Joined({WholeObject(u"2p"_s, 1), WholeObject({}, 1), WholeObject(u"3P"_s, 2)}));
  std::int32_t flags = 0;
  const auto update = [&](int object) {
    return CElementImport(1, &engine_).UpdateElement(source, object, &flags, &window_);
  };
  Person person({[](QWidget* question) {
                   EXPECT_EQ(DialogIn(question).TemplateNumber(), 13009);
                   Click(question, 1928);
                   Click(question, kOk);
                 },
                 [](QWidget* question) {
                   EXPECT_EQ(DialogIn(question).TemplateNumber(), 13007);
                   Click(question, 1906);
                   Type(question, 1908, u"1p"_s);
                   Click(question, kOk);
                 },
                 Message(QMessageBox::Information, LoadString(13474))});
  EXPECT_EQ(update(0), 1);
  EXPECT_EQ(flags, 0x002);
  EXPECT_EQ(update(1), 1) << "the button of the message box";
  EXPECT_EQ(update(2), 2);
  EXPECT_EQ(File(),
            Joined({WholeObject(u"1P"_s, 1), WholeObject(u"2p"_s, 1), WholeObject(u"3P"_s, 2)}));
  CElementImport import(1, &engine_);
  EXPECT_EQ(import.ImportElement(source, 3, &flags, &window_), -2);
  EXPECT_EQ(import.ErrorText(), FilledString(13446, {u"3"_s, u"3"_s, source}));
}

}  // namespace
}  // namespace vyn
