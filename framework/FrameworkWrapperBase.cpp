#include "FrameworkWrapperBase.h"

FrameworkWrapperBase::~FrameworkWrapperBase() = default;
