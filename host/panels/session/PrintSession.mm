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

void PrintSession::takePrinter(OpenedPrinter opened) {
  panels_.reset();
  job_.takePrinter(std::move(opened));
  loadPanels();
}

} // namespace imageposition
