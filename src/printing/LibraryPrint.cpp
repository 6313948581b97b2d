#include "printing/LibraryPrint.h"

#include "printing/PrintLayout.h"

namespace veyrant {

namespace {

// Passes the layout's drawing through, except that a Dialogue's end is not the document's.
class DialogueInDocument final : public PageDevice {
public:
    explicit DialogueInDocument(PageDevice& device) : device_(device) {}

    void SetFont(const PrintFont& font) override { device_.SetFont(font); }
    double TextWidth(std::string_view text) const override { return device_.TextWidth(text); }
    void SetCurrentX(double inches) override { device_.SetCurrentX(inches); }
    void Print(std::string_view text) override { device_.Print(text); }
    void EndLine() override { device_.EndLine(); }
    void NewPage() override { device_.NewPage(); }
    void EndDocument() override {}

private:
    PageDevice& device_;
};

} // namespace

int LayOutLibrary(PageDevice& device, const std::vector<PrintRequest>& dialogues,
                  const std::function<bool(std::size_t done)>& goOn) {
    DialogueInDocument page(device);
    int pages = 0;
    for (std::size_t done = 0; done < dialogues.size(); ++done) {
        if (!goOn(done)) {
            return pages;
        }
        if (done > 0) {
            device.NewPage();
        }
        pages += LayOutDialogue(page, dialogues[done]);
    }
    device.EndDocument();
    return pages;
}

} // namespace veyrant
