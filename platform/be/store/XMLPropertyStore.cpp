#include <be/store/XMLFileReaderImpl.h>
#include <be/store/XMLFileWriterImpl.h>
#include <be/store/XMLPropertyStore.h>

#include <memory>

namespace BE {

const krocore::classref::ClassID kXMLFileWriterClassID{"BE.XMLFileWriter"};
const krocore::classref::ClassID kXMLFileReaderClassID{"BE.XMLFileReader"};

namespace {

// Defined after the IDs above, so they are made first. The factories exist
// while the library is loaded: nothing but linking it is needed to create a
// store by ID, and nothing is left pointing into it once it is gone.
class Registration {
public:
  Registration() {
    krocore::classref::RegisterClassFactory(kXMLFileWriterClassID,
                                            [] { return std::make_shared<detail::XMLFileWriter>(); });
    krocore::classref::RegisterClassFactory(kXMLFileReaderClassID,
                                            [] { return std::make_shared<detail::XMLFileReader>(); });
  }
  ~Registration() {
    krocore::classref::UnregisterClassFactory(kXMLFileReaderClassID);
    krocore::classref::UnregisterClassFactory(kXMLFileWriterClassID);
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
};

const Registration sRegistration;

} // namespace
} // namespace BE
