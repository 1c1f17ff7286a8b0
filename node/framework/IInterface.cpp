#include "framework/IInterface.h"

IInterface::~IInterface() = default;
