// What the benchmarks of tables and colour share: images of any shape beside OpenCV's view of them.
#pragma once

#include <memory>
#include <opencv2/core.hpp>
#include <string>

#include "image/peers.h"

namespace bench {

using Picture = std::shared_ptr<Image>;

inline Picture picture(int side, int pixel_bytes, Image::Fill fill = nullptr)
{
    return std::make_shared<Image>(side, pixel_bytes, fill);
}

inline cv::Mat mat(const Picture& image, int type) { return mat(*image, type); }

// L2-resident, and five megapixels.
inline constexpr int kColourSides[] = {256, 2240};

// "orvane", "limit" and, where it is not null, a peer.
inline void compare(const std::string& name, int side, Picture src, Picture dst, std::function<void()> ours,
                    const std::string& who = "", std::function<void()> peer = nullptr)
{
    add(name, square(side), "orvane", ours);
    if (peer != nullptr) add(name, square(side), who, peer);
    add(name, square(side), "limit", [=] { limit({src.get()}, dst.get()); });
}

}  // namespace bench
