/// Previews of an A4 sheet, for tests.
#ifndef IMAGEPOSITION_TESTS_HOST_GUI_PICTURE_PREVIEWREQUESTS_HPP
#define IMAGEPOSITION_TESTS_HOST_GUI_PICTURE_PREVIEWREQUESTS_HPP

#include "PreviewGeometry.hpp"

namespace imageposition::test {

inline Preview previewOf(Offset front, Offset back, Turning turning = Turning::LongEdge) {
  PreviewRequest request;
  request.page = {{595}, {842}, {{12}, {12}, {583}, {830}}, true, true};
  request.front = front;
  request.back = back;
  request.turning = turning;
  request.availability = {turning == Turning::OneSided, false};
  return makePreview(request);
}

} // namespace imageposition::test

#endif
