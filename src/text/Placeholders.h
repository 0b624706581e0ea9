#pragma once
// Filling values into a text of the catalogue.

#include "platform/Placeholders.h"  // IWYU pragma: export
