#include "tools/vyn-drive/import_progress.h"

#include <QProgressBar>

#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/script.h"

namespace vyn::drive {

using namespace Qt::StringLiterals;

void ImportProgress::Attach(const QWidget& window, const QProgressBar& bar, QWidget& stop,
                            std::optional<int> stopPercent) {
  caption_ = window.windowTitle();
  percent_ = bar.value();
  if (stopPercent && percent_ >= *stopPercent) {
    // The bar starts there; the button can be pressed when the window is on the screen.
    QMetaObject::invokeMethod(
        &stop, [&stop] { Click(stop); }, Qt::QueuedConnection);
    stopPercent.reset();
  }
  connect(&bar, &QProgressBar::valueChanged, this, [this, stopPercent, &stop](int percent) mutable {
    percent_ = percent;
    if (!stopPercent || percent < *stopPercent) return;
    stopPercent.reset();
    Click(stop);
  });
}

QString ImportProgress::Report() const {
  if (!caption_) throw ScriptError{u"no import has run"_s};
  return u"progress: "_s + Quoted(*caption_) + u' ' + QString::number(percent_);
}

}  // namespace vyn::drive
