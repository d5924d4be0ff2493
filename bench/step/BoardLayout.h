#pragma once

#include "BoardDocument.h"

namespace orvane::board {

/// Places products side by side in rows on one side of a board, whose middle is the origin.
class BoardLayout {
public:
    /// `gap` is kept between the products. The lower side is that below z = 0: products hang from it.
    BoardLayout(BoardDocument& document, Product& board, double width, double depth, double gap);

    void setUpsideDown(double underside);

    /// Each other instance is turned by half a turn. Returns the last one.
    /// Ends the program when the board is full.
    TDF_Label place(Product& product, int count = 1);

private:
    gp_Pnt nextPlace(double width, double depth);

    BoardDocument& document_;
    Product& board_;
    double width_;
    double depth_;
    double gap_;
    double x_;
    double y_;
    double rowDepth_ = 0;
    double underside_ = 0;
    bool isUpsideDown_ = false;
};

} // namespace orvane::board
