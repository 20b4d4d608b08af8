// The toolkit's style with marks of options and check boxes as large as the board is.
#pragma once

#include <QProxyStyle>

class BoardStyle : public QProxyStyle {
public:
    // One style on every desktop keeps the board's colours.
    BoardStyle();

    int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};
