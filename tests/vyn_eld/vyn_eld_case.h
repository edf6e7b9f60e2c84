// A folder of element files and vyn-eld started in it.
#pragma once

#include <QFileInfo>
#include <QProcess>

#include "tests/elements/element_case.h"

namespace vyn {

struct Outcome {
  int exitCode;
  QByteArray output;
  QByteArray errors;

  QByteArray LastLine() const { return output.sliced(output.lastIndexOf('\n', -2) + 1); }
};

class VynEldCase : public ElementCase {
 protected:
  Outcome Run(const QStringList& words, const QString& outputFile = {}) {
    QProcess process;
    process.setWorkingDirectory(QFileInfo(PathOf(QStringLiteral("x"))).path());
    if (!outputFile.isEmpty()) process.setStandardOutputFile(outputFile);
    process.start(QStringLiteral(VYN_ELD), words);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << words.join(u' ').toStdString();
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }
};

}  // namespace vyn
