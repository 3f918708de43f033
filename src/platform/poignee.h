#pragma once
// Handles together with the calls that make them.
#include "platform/proprietaire.h"
#include "platform/windows.h"
