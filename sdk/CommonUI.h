#pragma once

// Every public header of the library, for clients that want them all.

#include "UI/CKyUIStyle.h"
