// Settings come back as they were written, by whoever reads them, and only under their own key.
#include "siblings/registry/registry.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class Registry : public testing::Test {
 protected:
  Registry() { Reopen(); }
  ~Registry() override { CRegistry::UseFile(QDir::temp().filePath(u"vyn-tests-unused.ini"_s)); }
  void Reopen() { CRegistry::UseFile(folder.filePath(u"settings.ini"_s)); }

  QTemporaryDir folder;
};

TEST_F(Registry, EveryTextSurvivesTheFile) {
  const QStringList texts = {u"halley"_s,
                             u"a, b; c"_s,
                             u"\"quoted\" \\ back\\slash"_s,
                             u"  blanks  "_s,
                             u"C:\\Users\\天文\\要素.eld"_s,
                             u"@Invalid()"_s,
                             u"@ByteArray(x)"_s,
                             u"%1 %s"_s,
                             u"=;#[x]"_s,
                             u"two\nlines\r\n"_s,
                             u"\u0001\t"_s,
                             u"𠮷野家"_s};
  CRegistry comets(u"Dialog\\Comet"_s);
  for (int i = 0; i < texts.size(); ++i) {
    EXPECT_TRUE(comets.Write(u"SearchString%1"_s.arg(i), texts[i]));
  }
  Reopen();
  for (int i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(comets.Read(u"SearchString%1"_s.arg(i)).toStdString(), texts[i].toStdString());
  }
}

TEST_F(Registry, KeysAreApartAndFallbacksStandInForWhatIsMissing) {
  CRegistry comets(u"Dialog\\Comet"_s), planets(u"Dialog\\MinorPlanet"_s), root(u"Dialog"_s);
  comets.Write(u"Folder"_s, u"here"_s);
  comets.Write(u"Count"_s, 7);
  comets.Write(u"Empty"_s, QString());
  EXPECT_EQ(planets.Read(u"Folder"_s), QString());
  EXPECT_EQ(planets.Read(u"Folder"_s, u"there"_s), u"there");
  EXPECT_FALSE(planets.Contains(u"Folder"_s));
  EXPECT_EQ(comets.Read(u"Count"_s, 1), 7);
  EXPECT_EQ(comets.Read(u"Folder"_s, 3), 3) << "no number";
  EXPECT_EQ(comets.Read(u"Empty"_s, u"fallback"_s), QString());
  EXPECT_TRUE(comets.Contains(u"Empty"_s));
  EXPECT_EQ(comets.GetRegEnumValue(), (QStringList{u"Count"_s, u"Empty"_s, u"Folder"_s}));
  EXPECT_EQ(root.GetRegEnumValue(), QStringList{}) << "values, not keys below";
}

TEST_F(Registry, WhatIsDeletedIsGoneAndTheRestStays) {
  CRegistry comets(u"Dialog\\Comet"_s);
  comets.Write(u"A"_s, u"1"_s);
  comets.Write(u"B"_s, u"2"_s);
  comets.DeleteValue(u"A"_s);
  comets.DeleteValue(u"None"_s);
  Reopen();
  EXPECT_EQ(comets.GetRegEnumValue(), QStringList{u"B"_s});
}

TEST_F(Registry, SaysWhenItCannotWrite) {
  const QString notAFolder = folder.filePath(u"file"_s);
  QFile file(notAFolder);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  CRegistry::UseFile(notAFolder + u"/settings.ini");
  EXPECT_FALSE(CRegistry(u"Dialog\\Comet"_s).Write(u"A"_s, u"1"_s));
}

}  // namespace
}  // namespace vyn
