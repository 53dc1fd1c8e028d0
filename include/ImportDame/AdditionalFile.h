#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/File.h>

namespace ImportDame {

/// A file that an external procedure needs besides its source file.
class IMPORTDAME_API VAdditionalFile : public VFile {
public:
    VAdditionalFile();
    VAdditionalFile(const VAdditionalFile& other);
    VAdditionalFile& operator=(const VAdditionalFile& other);
    ~VAdditionalFile() override;
};

} // namespace ImportDame
