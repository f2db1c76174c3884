#pragma once

#include "platform/Controls.h"
#include "platform/Outlet.h"

namespace qbsp::platform {

template <>
TextField& nullObject();
template <>
Button& nullObject();
template <>
RecorderControl& nullObject();
template <>
TableColumn& nullObject();
template <>
TableView& nullObject();

} // namespace qbsp::platform
