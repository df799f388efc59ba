#include "PrinterModel.h"
