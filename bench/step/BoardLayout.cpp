#include "BoardLayout.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace orvane::board {

BoardLayout::BoardLayout(BoardDocument& document, Product& board, double width, double depth, double gap)
    : document_(document), board_(board), width_(width), depth_(depth), gap_(gap), x_(-width / 2),
      y_(-depth / 2) {}

void BoardLayout::setUpsideDown(double underside) {
    underside_ = underside;
    isUpsideDown_ = true;
}

TDF_Label BoardLayout::place(Product& product, int count) {
    const gp_Pnt low = product.box.CornerMin();
    const gp_Pnt high = product.box.CornerMax();
    const gp_Trsf toMiddle = shift(-(low.X() + high.X()) / 2, -(low.Y() + high.Y()) / 2, 0);
    TDF_Label last;
    for (int i = 0; i < count; ++i) {
        const gp_Pnt at = nextPlace(high.X() - low.X(), high.Y() - low.Y());
        const gp_Trsf turn =
            isUpsideDown_ ? spin(gp::DX(), 180) * spin(180. * (i % 2)) : spin(180. * (i % 2));
        last = document_.place(board_, product, shift(at.X(), at.Y(), underside_) * turn * toMiddle);
    }
    return last;
}

gp_Pnt BoardLayout::nextPlace(double width, double depth) {
    if (x_ + width > width_ / 2) {
        x_ = -width_ / 2;
        y_ += rowDepth_ + gap_;
        rowDepth_ = 0;
    }
    if (y_ + depth > depth_ / 2) {
        std::cerr << "make_board: the board is too small for its parts\n";
        std::exit(1);
    }
    const gp_Pnt at(x_ + width / 2, y_ + depth / 2, 0);
    x_ += width + gap_;
    rowDepth_ = std::max(rowDepth_, depth);
    return at;
}

} // namespace orvane::board
