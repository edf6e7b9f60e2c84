// The dialogs on comets and minor planets with two engines, of which the second hears of changed
// objects only, and where no trace reaches: layout, handlers called with foreign records, a
// vanished engine, the close box during an import.
#include <memory>

#include <gtest/gtest.h>

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "resources/element_class_controls.h"
#include "siblings/controls/controls.h"
#include "siblings/controls/object_list_box.h"
#include "siblings/registry/registry.h"
#include "small_bodies/comet_dialog.h"
#include "small_bodies/minor_planet_dialog.h"
#include "tests/core_link/person.h"
#include "tests/small_bodies/answering_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

struct ElementClass {
  const char* name;
  QString path;
  QString key;
  ElementClassControls id;
  int columns, individual, vector, perpendicular;
  QString sample;
  std::unique_ptr<CVynDialog> (*make)(CCorVyn*, CCorVyn*, QWidget*);
};

template <class Dialog>
std::unique_ptr<CVynDialog> Make(CCorVyn* first, CCorVyn* second, QWidget* parent) {
  return std::make_unique<Dialog>(first, second, parent);
}

const ElementClass kClasses[] = {
    {"Comet", u"Solar.Comet"_s, u"Dialog\\Comet"_s, kCometControls, 19, 3, 11, 15,
     QString(14, u'X'), &Make<CDlgComet>},
    {"MinorPlanet", u"Solar.MinorPlanet"_s, u"Dialog\\MinorPlanet"_s, kMinorPlanetControls, 17, 3,
     12, 16, QString(10, u'X'), &Make<CDlgMinorPlanet>},
};

void PrintTo(const ElementClass& row, std::ostream* out) { *out << row.name; }

class ElementClassDialog : public testing::TestWithParam<ElementClass> {
 protected:
  ElementClassDialog() : c(GetParam()) {
    CRegistry settings(c.key);
    for (const QString& name : settings.GetRegEnumValue()) settings.DeleteValue(name);
    for (int i = 1; i <= 40; ++i) Set(u"%1.ID"_s.arg(No(i)), u"ID%1 "_s.arg(i));
    Set(c.path + u".Count", u"40"_s);
    Set(c.path + u".CountOfVisible", u"7"_s);
    Set(c.path + u".OrbitalType.Count", u"2"_s);
    Set(c.path + u".OrbitalType.#1.ObjectName", u"One"_s);
    Set(c.path + u".OrbitalType.#2.ObjectName", u"Two"_s);
    Set(c.path + u".Status", u"saved;"_s);
  }

  void Set(const QString& path, const QString& value) { first.values.insert(path, value); }
  QString No(int number) const { return u"%1.No%2"_s.arg(c.path).arg(number); }

  void Open() {
    if (!dialog) dialog = c.make(&first, &second, nullptr);
    ASSERT_TRUE(dialog->Create());
    QApplication::setActiveWindow(dialog.get());
    QCoreApplication::processEvents();
    first.queries.clear();
    first.changes.clear();
  }
  template <class Control = QWidget>
  Control& Item(int id) {
    return *static_cast<Control*>(dialog->GetDlgItem(id));
  }
  CVynListBoxAObj& List() { return Item<CVynListBoxAObj>(c.id.ObjectList()); }
  void Click(int id) {
    QWidget& control = Item(id);
    QTest::mouseClick(&control, Qt::LeftButton, {}, {8, control.height() / 2});
  }
  void ClickCell(qint64 row, int column) {
    List().ScrollTo(row);
    QTest::mouseClick(&List(), Qt::LeftButton, {}, List().CellRect(row, column).center());
  }
  void Tell(ObjectListReason reason, tagUpdateInfo* record) {
    CVynMessage message(ObjectListMessage(), static_cast<quintptr>(reason), record);
    QCoreApplication::sendEvent(dialog.get(), &message);
  }
  tagUpdateInfo Batch(int control, qint64 rows) {
    tagUpdateInfo record;
    record.controlId = static_cast<quint32>(control);
    record.rowCount = rows;
    for (const tagHeaderDataItem& column : Item<CVynListBoxAObj>(control).Columns()) {
      record.AddColumn(column);
    }
    return record;
  }

  const ElementClass& c;
  AnsweringEngine first, second;
  std::unique_ptr<CVynDialog> dialog;
};

INSTANTIATE_TEST_SUITE_P(Small, ElementClassDialog, testing::ValuesIn(kClasses),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(ElementClassDialog, NamesShareWhatTheOthersLeaveAlsoWhenResized) {
  Open();
  const auto check = [&] {
    int others = 0;
    for (int i = 0; i < c.columns; ++i) {
      if (i != 1 && i != 2) others += List().TitleRect(i).width();
    }
    const int half = (List().GetHeaderAreaWidth() - others) / 2;
    EXPECT_EQ(List().TitleRect(1).width(), half);
    EXPECT_EQ(List().TitleRect(2).width(), half);
  };
  check();
  for (const int more : {1, 2, 57}) {
    dialog->resize(dialog->width() + more, dialog->height());
    QCoreApplication::processEvents();
    check();
  }
  ASSERT_EQ(static_cast<int>(List().Columns().size()), c.columns);
  QFont font = List().font();
  font.setFamilies({u"ＭＳ ゴシック"_s, font.family()});
  EXPECT_GE(List().TitleRect(0).width(), QFontMetrics(font).horizontalAdvance(c.sample));
  EXPECT_EQ(List().Columns()[0].text, u"認識符号");
  EXPECT_EQ(List().GetRegFontDefault(1).faceName, u"ＭＳ ゴシック");
}

TEST_P(ElementClassDialog, TitlesOfNamesFitHoweverNarrow) {
  Open();
  dialog->resize(1, dialog->height());
  QCoreApplication::processEvents();
  for (const int name : {1, 2}) {
    const tagHeaderDataItem& column = List().Columns()[static_cast<std::size_t>(name)];
    EXPECT_GE(column.width, List().fontMetrics().horizontalAdvance(column.text) + column.padding);
  }
}

TEST_P(ElementClassDialog, AsksForTheRowsInViewAndNothingElse) {
  Open();
  List().ScrollTo(39);
  List().Update();
  QCoreApplication::processEvents();
  EXPECT_TRUE(first.queries.contains(u"? "_s + No(40) + u".ID"));
  EXPECT_FALSE(first.queries.contains(u"? "_s + No(5) + u".ID"));
  EXPECT_LT(first.queries.size(), 25 * 30);
  EXPECT_TRUE(second.queries.isEmpty());
  EXPECT_EQ(Item<QLabel>(c.id.ShownCount()).text(), u"7");
  EXPECT_EQ(Item<QLabel>(c.id.TotalCount()).text(), u"40");
}

TEST_P(ElementClassDialog, StatusFollowsTheObjectAndTheMode) {
  Set(No(1), u"TRUE"_s);
  Open();
  const int sky = c.vector + 1, orbit = c.vector + 2;
  const auto enabled = [&](qint64 row) {
    QString columns;
    const tagUpdateInfo batch = List().AskRows(row, 1);
    for (int i = 0; i < c.columns; ++i) {
      columns += batch.Column(i).Cell(0).status == kCellNormal ? u'+' : u'-';
    }
    return columns;
  };
  const qsizetype always = c.vector - 5, rest = c.columns - c.perpendicular - 1;
  const QString names(always, u'+'), tails(rest, u'+');
  EXPECT_EQ(enabled(0), names + u"+++++" + u"++" + u"---" + tails);
  Set(u"View.Projection"_s, u"SOLARSYSTEMfromfar"_s);
  EXPECT_EQ(enabled(0), names + u"+++++" + u"+-" + u"+++" + tails);
  EXPECT_EQ(enabled(1), names + QString(c.columns - always, u'-'));
  EXPECT_EQ(List().Columns()[sky].text, u"空の軌道");
  EXPECT_EQ(List().Columns()[orbit].text, u"軌道");
}

TEST_P(ElementClassDialog, SecondEngineHearsNothingOfTheDisplay) {
  Set(No(1), u"TRUE"_s);
  Set(c.path, u"TRUE"_s);
  Set(c.path + u".Vector", u"TRUE"_s);
  Open();
  ClickCell(0, c.individual);
  ClickCell(0, c.vector);
  Click(c.id.BrighterCheck());
  Item<QLineEdit>(c.id.SpanEdit()).setText(u"3"_s);
  CVynListBoxAObj& types = Item<CVynListBoxAObj>(c.id.OrbitalTypeList());
  QTest::mouseClick(&types, Qt::LeftButton, {}, types.CellRect(1, 0).center());
  QTest::mouseClick(&List(), Qt::LeftButton, {}, List().TitleRect(c.vector).center());
  Click(kCancelButton);
  EXPECT_EQ(
      first.changes,
      (QStringList{No(1) + u".Individual = true", u"Show Sky"_s, No(1) + u".Vector = true",
                   u"Show Sky"_s, c.path + u".Brighter.Visible = True; Show Sky",
                   c.path + u".Vector.Span = 3.000000; Show Sky",
                   c.path + u".OrbitalType.Two = true", u"Show Sky"_s, c.path + u".Vector = false",
                   u"Show Sky"_s, c.path + u".Init()", u"saved;"_s, u"Show Sky"_s}));
  EXPECT_TRUE(second.changes.isEmpty() && second.queries.isEmpty());
}

/// Half of the rows in view on: off. One more: on.
TEST_P(ElementClassDialog, AllButtonFollowsTheRowsInView) {
  Set(c.path + u".Count", u"4"_s);
  for (const int i : {1, 2}) Set(No(i) + u".Date", u"TRUE"_s);
  Open();
  const int date = c.vector - 1;
  const auto press = [&] {
    QTest::mouseClick(&List(), Qt::LeftButton, {}, List().TitleRect(date).center());
    return first.TakeChanges().value(0);
  };
  EXPECT_EQ(press(), c.path + u".Date = false");
  Set(No(3) + u".Date", u"TRUE"_s);
  List().Update();
  EXPECT_EQ(press(), c.path + u".Date = true");
}

TEST_P(ElementClassDialog, RecordsFromOutsideDoNothing) {
  Open();
  tagUpdateInfo none = Batch(c.id.ObjectList(), 0);
  Tell(ObjectListReason::Fill, &none);
  Tell(ObjectListReason::Fill, nullptr);
  tagUpdateInfo without;
  without.controlId = static_cast<quint32>(c.id.ObjectList());
  without.rowCount = 0;
  Tell(ObjectListReason::Fill, &without);
  EXPECT_TRUE(first.queries.isEmpty());
  for (const int control : {c.id.ObjectList(), c.id.OrbitalTypeList()}) {
    const int columns = static_cast<int>(Item<CVynListBoxAObj>(control).Columns().size());
    tagUpdateInfo record = Batch(control, 1);
    for (const auto& [column, row] : {std::pair{-1, 0}, {columns, 0}, {0, -1}, {0, 1}}) {
      record.columnIndex = column;
      record.rowIndex = row;
      EXPECT_NO_THROW(Tell(ObjectListReason::CellChanged, &record)) << column << ' ' << row;
    }
    record.columnIndex = columns;
    EXPECT_NO_THROW(Tell(ObjectListReason::AllButton, &record));
    Tell(static_cast<ObjectListReason>(3), &record);
  }
  EXPECT_TRUE(first.changes.isEmpty()) << qPrintable(first.changes.join(u'\n'));
}

TEST_P(ElementClassDialog, IndicatorsSendNothingEvenWhenTold) {
  Open();
  tagUpdateInfo record = Batch(c.id.ObjectList(), 1);
  record.rowIndex = 0;
  for (const int column : {4, 5}) {
    record.columnIndex = column;
    Tell(ObjectListReason::CellChanged, &record);
    Tell(ObjectListReason::AllButton, &record);
  }
  EXPECT_TRUE(first.changes.isEmpty());
}

/// Without the handle and with one whose window is gone alike.
TEST_P(ElementClassDialog, WithoutAnEngineNothingIsSentAndEverythingCloses) {
  first.hasWindow = false;
  for (CCorVyn* engine : {static_cast<CCorVyn*>(nullptr), static_cast<CCorVyn*>(&first)}) {
    dialog = c.make(engine, &second, nullptr);
    for (const int button : {kOkButton, kCancelButton}) {
      ASSERT_TRUE(dialog->Create());
      QCoreApplication::processEvents();
      EXPECT_EQ(List().GetValueCountTotal(), 0);
      Item<QSlider>(c.id.BrighterSlider()).setValue(77);
      EXPECT_EQ(Item<QLineEdit>(c.id.BrighterEdit()).text(), u"0.0");
      Item<QLineEdit>(c.id.BrighterEdit()).setText(u"99"_s);
      Item<QLineEdit>(c.id.SpanEdit()).setText(u"-1"_s);
      for (int id = c.id.NewButton(); id <= c.id.FileButton(); ++id) Click(id);
      Click(c.id.BrighterCheck());
      Click(c.id.SearchForward());
      QTest::mouseClick(&Item(c.id.SpanSpin()), Qt::LeftButton, {}, {3, 3});
      Click(button);
      EXPECT_FALSE(dialog->isVisible());
    }
  }
  EXPECT_TRUE(first.queries.isEmpty() && first.changes.isEmpty());
  EXPECT_TRUE(second.queries.isEmpty() && second.changes.isEmpty());
}

TEST_P(ElementClassDialog, TheEngineMayVanishWhileItIsOpen) {
  Open();
  first.hasWindow = false;
  List().Update();
  ClickCell(1, c.individual);
  Click(c.id.BrighterCheck());
  Click(kCancelButton);
  EXPECT_TRUE(first.queries.isEmpty() && first.changes.isEmpty());
  EXPECT_FALSE(dialog->isVisible());
}

TEST_P(ElementClassDialog, SearchWalksBothWaysAndTellsWhenThereIsNoMore) {
  Open();
  auto& combo = Item<QComboBox>(c.id.SearchCombo());
  const auto found = [&](const QString& text, int button) {
    combo.setEditText(text);
    Click(button);
    return List().GetValueSelect();
  };
  EXPECT_EQ(found(u" id3 ;"_s, c.id.SearchForward()), 2);
  EXPECT_EQ(found(u"id3"_s, c.id.SearchForward()), 29);
  EXPECT_EQ(found(u"ID3"_s, c.id.SearchBackward()), 2);
  EXPECT_TRUE(List().rect().contains(List().CellRect(2, 0)));
  List().SetValueSelect(39, 1, 1);
  Person person({[](QWidget* window) {
    auto* box = qobject_cast<QMessageBox*>(window);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), QMessageBox::Information);
    EXPECT_EQ(box->text(), u"一致する天体はありません。");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the wait is over";
    box->accept();
  }});
  EXPECT_EQ(found(u"id1"_s, c.id.SearchForward()), 39);
  EXPECT_TRUE(first.changes.isEmpty());
}

TEST_P(ElementClassDialog, HistoryKeepsFiveTheNewestFirstAndStopsAtAGap) {
  CRegistry settings(c.key);
  const QStringList kept = {u"id5"_s, u" two words"_s, u"ハレー, 1P; \"x\" \\ %1"_s,
                            u"@Invalid()"_s};
  for (int i = 0; i < kept.size(); ++i) settings.Write(u"SearchString%1"_s.arg(i + 1), kept[i]);
  settings.Write(u"SearchString6"_s, u"beyond"_s);
  Open();
  const auto history = [&] {
    auto& combo = Item<QComboBox>(c.id.SearchCombo());
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i) texts.append(combo.itemText(i));
    return texts;
  };
  EXPECT_EQ(history(), kept);
  EXPECT_EQ(Item<QComboBox>(c.id.SearchCombo()).currentText(), kept[0]);
  for (const QString& text : {u"id7"_s, u"id8"_s, u"id7"_s, u"ID7"_s}) {
    List().SetValueCountTotal(40, 0);
    Item<QComboBox>(c.id.SearchCombo()).setEditText(text);
    Click(c.id.SearchForward());
  }
  const QStringList now = {u"ID7"_s, u"id7"_s, u"id8"_s, kept[0], kept[1]};
  EXPECT_EQ(history(), now);
  Click(kCancelButton);
  EXPECT_EQ(settings.Read(u"SearchString5"_s), kept[1]);
  EXPECT_EQ(settings.Read(u"SearchString6"_s), u"beyond") << "left as it is";
  settings.Write(u"SearchString3"_s, QString());
  Open();
  EXPECT_EQ(history(), now.first(2));
  Click(kOkButton);
}

TEST_P(ElementClassDialog, EnterSearchesInTheBoxAndTheButtonClosesAllTheSame) {
  Open();
  auto& combo = Item<QComboBox>(c.id.SearchCombo());
  combo.setFocus();
  combo.setEditText(u"id1"_s);
  QTest::keyClick(combo.lineEdit(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(List().GetValueSelect(), 0);
  QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(List().GetValueSelect(), 9);
  QTest::keyClick(combo.lineEdit(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(List().GetValueSelect(), 0);
  EXPECT_TRUE(dialog->isVisible());
  Item<QPushButton>(kOkButton).click();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(CRegistry(c.key).Read(u"SearchString1"_s), u"id1");
}

TEST_P(ElementClassDialog, OrbitalTypesStretchTheirNamesAndSkipTheNameless) {
  Set(c.path + u".OrbitalType.#1.ObjectName", QString());
  Set(c.path + u".OrbitalType.Two", u"true"_s);
  Open();
  auto& types = Item<CVynListBoxAObj>(c.id.OrbitalTypeList());
  EXPECT_EQ(types.GetValueCountTotal(), 1);
  const tagUpdateInfo row = types.AskRows(0, 1);
  EXPECT_EQ(row.Column(0).Cell(0).value, 1);
  EXPECT_EQ(row.Column(1).Cell(0).text, u"<不明>");
  EXPECT_EQ(types.TitleRect(0).width() + types.TitleRect(1).width(), types.GetHeaderAreaWidth());
}

TEST_P(ElementClassDialog, TypeNamesFitHoweverNarrowUnlessTheyAreEndless) {
  const QString name = u"火星横断小惑星群"_s;
  Set(c.path + u".OrbitalType.#1.LocalName", name);
  Open();
  dialog->resize(1, dialog->height());
  QCoreApplication::processEvents();
  const auto& types = Item<CVynListBoxAObj>(c.id.OrbitalTypeList());
  EXPECT_GE(types.TitleRect(1).width(),
            types.fontMetrics().horizontalAdvance(name) + types.Columns()[1].padding);
  dialog.reset();
  Set(c.path + u".OrbitalType.#1.LocalName", name.repeated(20));
  Open();
  const auto& endless = Item<CVynListBoxAObj>(c.id.OrbitalTypeList());
  EXPECT_LE(endless.minimumWidth(), endless.sizeHint().width());
}

TEST_P(ElementClassDialog, TakesNoCloseBoxWhileAnImportRuns) {
  Open();
  dialog->setEnabled(false);
  EXPECT_FALSE(dialog->close());
  EXPECT_TRUE(first.changes.isEmpty());
  dialog->setEnabled(true);
  EXPECT_TRUE(dialog->close());
  EXPECT_EQ(first.changes.value(0), c.path + u".Init()");
}

TEST(MinorPlanets, SpectralTypesComeInOrderWithoutZ) {
  AnsweringEngine engine;
  for (const char16_t letter : {u'S', u'C', u'Z', u'Y'}) {
    engine.values.insert(u"Solar.MinorPlanet.SpectralType.%1.Count"_s.arg(QChar(letter)), u"1"_s);
  }
  CDlgMinorPlanet dialog(&engine, nullptr, nullptr);
  ASSERT_TRUE(dialog.Create());
  auto& types = *static_cast<CVynListBoxAObj*>(dialog.GetDlgItem(kSpectralTypeList));
  const tagUpdateInfo rows = types.AskRows(0, 9);
  QStringList names;
  for (qint64 i = 0; i < rows.rowCount; ++i) names.append(rows.Column(1).Cell(i).text);
  EXPECT_EQ(names, (QStringList{u"C型"_s, u"S型"_s, u"Y型"_s}));
}

}  // namespace
}  // namespace vyn
