// File paths with either slash.
#include "siblings/files/common_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

struct PathCase {
  const char16_t* path;
  const char16_t* folder;
  const char16_t* extension;
  const char16_t* withTemporaryExtension;
};

constexpr PathCase kPaths[] = {
    {u"C:\\data\\comets.eld", u"C:\\data", u".eld", u"C:\\data\\comets.$$E"},
    {u"/home/a.b/comets.ELD", u"/home/a.b", u".ELD", u"/home/a.b/comets.$$E"},
    {u"/home/a.b/comets", u"/home/a.b", u"", u"/home/a.b/comets.$$E"},
    {u"C:\\a.b/c\\彗星.tar.gz", u"C:\\a.b/c", u".gz", u"C:\\a.b/c\\彗星.tar.$$E"},
    {u"comets.eld", u"", u".eld", u"comets.$$E"},
    {u"/comets.eld", u"/", u".eld", u"/comets.$$E"},
    {u"C:\\comets.eld", u"C:\\", u".eld", u"C:\\comets.$$E"},
    {u"/home/.hidden", u"/home", u"", u"/home/.hidden.$$E"},
    {u"name.", u"", u".", u"name.$$E"},
    {u"folder/", u"folder", u"", u"folder/.$$E"},
    {u"", u"", u"", u".$$E"},
};

TEST(CommonFile, PathsComeApartAndTogether) {
  for (const PathCase& c : kPaths) {
    const QString path = QString::fromUtf16(c.path);
    SCOPED_TRACE(path.toStdString());
    EXPECT_EQ(CCommonFile::GetPathName(path), QStringView(c.folder));
    EXPECT_EQ(CCommonFile::GetExtension(path), QStringView(c.extension));
    EXPECT_EQ(CCommonFile::SetExtension(path, u".$$E"_s), QStringView(c.withTemporaryExtension));
    EXPECT_EQ(CCommonFile::SetExtension(path, u"$$E"_s), QStringView(c.withTemporaryExtension));
  }
  EXPECT_EQ(CCommonFile::SetExtension(u"a/b.c"_s, u""_s), u"a/b"_s);
}

TEST(CommonFile, OnlyFilesExist) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"コロナ.txt"_s);
  EXPECT_FALSE(CCommonFile::DoesFileExist(path));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_TRUE(CCommonFile::DoesFileExist(path));
  EXPECT_TRUE(CCommonFile::DoesFileExist(QString(path).replace(u'/', u'\\')));
  EXPECT_FALSE(CCommonFile::DoesFileExist(folder.path()));
  EXPECT_FALSE(CCommonFile::DoesFileExist(QString()));
}

}  // namespace
}  // namespace vyn
