#include "zrk/shaders/layer_registry.h"

#include "zrk/shaders/blend_layer.h"

#include <gtest/gtest.h>

#include <string>

using namespace zrk;

TEST(LayerRegistry, DeletesItsLayersInTheOrderOfAdding)
{
    static std::string deleted;
    struct NumberedLayer : BlendLayer {
        explicit NumberedLayer(std::int32_t number) { index = number; }
        ~NumberedLayer() override { deleted += std::to_string(index); }
    };
    auto registry = std::make_unique<LayerRegistry>();
    for (const std::int32_t number : {1, 2, 3})
        registry->add(std::make_unique<NumberedLayer>(number));
    EXPECT_EQ(registry->count(), 3u);
    registry.reset();
    EXPECT_EQ(deleted, "123");
}
