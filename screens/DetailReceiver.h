#pragma once
// A screen that shows one coin handed over by the list that opens it.
#include "model/Records.h"

class DetailReceiver {
public:
    virtual ~DetailReceiver() = default;
    virtual void setDetailItem(const CoinPtr& coin) = 0;
};
