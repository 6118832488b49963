#pragma once

#include <memory>

#include <QElapsedTimer>
#include <QString>

class QProgressDialog;
class QWidget;

namespace gullymark::shell {

/// Work that may take long: after half a second a modal dialog tells how far it is, and lets the user end it.
class LongWork {
  public:
    LongWork(QWidget* parent, QString what);
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    /// To be called often: so much is done. False when the user ends it.
    bool go_on(std::size_t done, std::size_t all);

  private:
    void show();

    QWidget* parent_;
    QString what_;
    QElapsedTimer since_;
    qint64 next_ = 0;
    bool ended_ = false;
    std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace gullymark::shell
