#include "PortalFixture.hpp"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace imageposition::test {

std::unique_ptr<KeptJobs> PortalFixture::kept;
int PortalFixture::lastJob = 0;

std::vector<int> PortalFixture::newJobs() {
  const std::string name = "office-";
  std::vector<int> jobs;
  std::istringstream lines(kept->cups().run({"lpstat", "-W", "all", "-o"}).output);
  for (std::string line; std::getline(lines, line);)
    if (line.compare(0, name.size(), name) == 0)
      if (const int job = std::atoi(line.c_str() + name.size()); job > lastJob)
        jobs.push_back(job);
  if (!jobs.empty())
    lastJob = *std::max_element(jobs.begin(), jobs.end());
  return jobs;
}

} // namespace imageposition::test
