#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace gullymark::shell {

/// The picture of the curb inlet, as large as the widget lets it be. The drawing's background reaches beyond its view
/// and fills the rest. Without the resource the widget stays empty.
class Picture : public QWidget {
  public:
    explicit Picture(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSvgRenderer drawing_;
    QRectF drawn_view_;
};

}  // namespace gullymark::shell
