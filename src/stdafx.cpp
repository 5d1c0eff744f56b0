// The constants live in the header, one copy per source file; this file keeps the header compiled on
// its own so that a mistake in it shows up once, here.
#include "stdafx.h"
