// The element buttons on real files: scripts of the driver with their whole traces, in a folder of
// their own, which both call WORK.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kRecordSize = 417;

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return file.readAll();
}

QByteArray WithIdentifier(QByteArray record, const QByteArray& identifier) {
  return record.replace(188, 15, identifier.leftJustified(15, ' '));
}

QByteArray AsPage(QByteArray record) { return record.replace(0, 1, "+"); }

class ElementFiles : public testing::Test {
 protected:
  void SetUp() override {
    const QByteArray comets = ReadAll(QStringLiteral(VYN_COMETS));
    const auto records = [&](int first, int count) {
      return comets.mid(first * kRecordSize, count * kRecordSize);
    };
    Write(u"comets.eld"_s, records(0, 3));
    Write(u"more.eld"_s, records(1, 1) + records(4, 2));
    Write(u"nameless.eld"_s, records(0, 2) + WithIdentifier(records(3, 1), {}) + records(2, 1));
    Write(u"twice.eld"_s, records(6, 1) + records(6, 1));
    Write(u"empty.eld"_s, {});
    Write(u"broken.eld"_s, "These are no elements.\r\n");
  }

  void Write(const QString& name, const QByteArray& bytes) {
    QFile file(work_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }

  /// What the driver prints for a script beside this source.
  QByteArray Trace(const QString& name) {
    QByteArray script = ReadAll(QStringLiteral(VYN_SCRIPTS "/") + name);
    QProcess drive;
    drive.setWorkingDirectory(work_.path());
    drive.start(QStringLiteral(VYN_DRIVE), {u"-"_s});
    drive.write(script.replace("WORK", work_.path().toUtf8()));
    drive.closeWriteChannel();
    EXPECT_TRUE(drive.waitForFinished());
    EXPECT_EQ(drive.readAllStandardError(), QByteArray());
    return drive.readAllStandardOutput().replace(work_.path().toUtf8(), "WORK");
  }

  QTemporaryDir work_;
};

TEST_F(ElementFiles, OfCometsAreEditedImportedAndChanged) {
  EXPECT_EQ(Trace(u"comet_files.drive"_s),
            ReadAll(QStringLiteral(VYN_SCRIPTS "/comet_files.trace")));
  EXPECT_EQ(ReadAll(work_.filePath(u"comets.eld"_s)).size(), 5 * kRecordSize);
}

TEST_F(ElementFiles, ThatVanishAreRejectedOrRunEmptyDoNoHarm) {
  EXPECT_EQ(Trace(u"comet_file_faults.drive"_s),
            ReadAll(QStringLiteral(VYN_SCRIPTS "/comet_file_faults.trace")));
}

TEST_F(ElementFiles, WithDoubtfulObjectsAreImportedAsIsAnswered) {
  const QByteArray comets = ReadAll(QStringLiteral(VYN_COMETS));
  const auto record = [&](int number) { return comets.mid(number * kRecordSize, kRecordSize); };
  const QByteArray nameless = WithIdentifier(record(4), {});
  const QByteArray known = WithIdentifier(record(1), "c/1995 o1");
  const QByteArray knownPages = known + AsPage(known) + AsPage(known);
  const QByteArray sinceThisRun = WithIdentifier(record(5), "n1");
  const QByteArray replaced = record(0).replace(20, 7, "Another");
  const QByteArray endsEarly = record(6).left(203) + "\r\n";
  Write(u"doubtful.eld"_s, nameless + nameless + AsPage(nameless) + nameless + nameless +
                               knownPages + sinceThisRun + replaced + endsEarly +
                               record(7).replace(415, 2, "\n\n"));
  EXPECT_EQ(Trace(u"comet_doubtful_import.drive"_s),
            ReadAll(QStringLiteral(VYN_SCRIPTS "/comet_doubtful_import.trace")));
  const QByteArray filledUp = record(6).left(203).leftJustified(415, ' ') + "\r\n";
  EXPECT_EQ(ReadAll(work_.filePath(u"comets.eld"_s)),
            replaced + knownPages + record(2) + sinceThisRun + filledUp);
}

TEST_F(ElementFiles, AreImportedAsTheAnswersSay) {
  EXPECT_EQ(Trace(u"comet_import_answers.drive"_s),
            ReadAll(QStringLiteral(VYN_SCRIPTS "/comet_import_answers.trace")));
}

TEST_F(ElementFiles, OfMinorPlanetsHaveTheirOwnSettings) {
  EXPECT_EQ(Trace(u"minor_planet_files.drive"_s),
            ReadAll(QStringLiteral(VYN_SCRIPTS "/minor_planet_files.trace")));
}

}  // namespace
