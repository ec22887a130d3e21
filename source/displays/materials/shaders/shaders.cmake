skyvane_embed(skyvane_upper skyvane_shader_simple_vert displays/materials/shaders/simple.vert)
foreach(name solid vertexAlpha textureAlpha alpha alphaRef vertexAndTextureColor)
  skyvane_embed(skyvane_upper skyvane_shader_${name}_frag displays/materials/shaders/${name}.frag)
endforeach()
