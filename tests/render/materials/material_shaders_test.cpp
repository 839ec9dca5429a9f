#include "tests/support/sha256.h"
#include "vela/render/materials/material_shaders.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::sha256Of;

// The texts are the look of the materials: not a byte of them changes by an editor, a checkout or the build.
TEST(MaterialShaders, ReachTheCompilerByteForByte)
{
    ASSERT_EQ(sha256Of("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(sha256Of(materialPixelShader()),
              "a5924c43205d30f11117994b568208166a2ae3e8298de7ce014aa18b60037470");
    EXPECT_EQ(sha256Of(materialVertexShader()),
              "8b8f4c5276cd3018b994845124157b8824070808ec7daf0581c55961c568f4d2");
}

} // namespace
} // namespace vela
