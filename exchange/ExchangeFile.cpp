#include "exchange/ExchangeFile.h"
