#include "shell/review/long_work.h"

#include <utility>

#include <QCoreApplication>
#include <QProgressDialog>

namespace gullymark::shell {
namespace {

constexpr qint64 shown_after = 500;
constexpr qint64 between_looks = 50;
constexpr int full_bar = 1000;

}  // namespace

LongWork::LongWork(QWidget* parent, QString what)
    : parent_(parent), what_(std::move(what)), next_(shown_after) {
    since_.start();
}

LongWork::~LongWork() = default;

void LongWork::show() {
    dialog_ = std::make_unique<QProgressDialog>(what_, QStringLiteral("Cancel"), 0, full_bar, parent_);
    dialog_->setObjectName(QStringLiteral("progress"));
    dialog_->setWindowTitle(QStringLiteral("GullymarkAL Review"));
    dialog_->setWindowModality(Qt::ApplicationModal);
    dialog_->setAutoClose(false);
    dialog_->setAutoReset(false);
    dialog_->setMinimumDuration(0);
    dialog_->show();
}

bool LongWork::go_on(std::size_t done, std::size_t all) {
    if (since_.elapsed() < next_ || ended_) {
        return !ended_;
    }
    if (!dialog_) {
        show();
    }
    dialog_->setValue(all == 0 ? 0 : static_cast<int>(done * full_bar / all));
    QCoreApplication::processEvents();
    next_ = since_.elapsed() + between_looks;
    ended_ = dialog_->wasCanceled();
    return !ended_;
}

}  // namespace gullymark::shell
