#pragma once

// Every public header of the library.

#include "NA/CKyNANetworkRequest.h"
