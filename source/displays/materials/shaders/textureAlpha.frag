#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D uTextureUnit0;
uniform vec4 uDiffuseColor;

varying vec4 vColor;
varying vec2 vTexCoord;

void main() {
    vec4 texel = texture2D(uTextureUnit0, vTexCoord);
    gl_FragColor = vec4(texel.rgb * uDiffuseColor.rgb, texel.a);
}
