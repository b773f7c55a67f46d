#include "PortalFixture.hpp"

namespace imageposition::test {

std::unique_ptr<KeptJobs> PortalFixture::kept;
int PortalFixture::lastJob = 0;

} // namespace imageposition::test
