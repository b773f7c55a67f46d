#import "PrintSession.h"

#include "PluginFolders.hpp"
#import "Pool.h"

#include <utility>

namespace imageposition {

void PrintSession::loadPanels() {
  const Pool pool;
  plugins_ =
      findPlugins({job_.arguments().plugins, job_.printer().attributeValues("APDialogExtension")},
                  pluginFolders());
  panels_ = std::make_unique<PanelSession>(job_.printer(), job_.settings());
  panels_->load(plugins_, loaded_);
}

void PrintSession::chooseQueue(const std::string &queue) {
  auto printer = job_.openPrinter(queue);
  panels_.reset();
  job_.takePrinter(queue, std::move(printer));
  loadPanels();
}

} // namespace imageposition
