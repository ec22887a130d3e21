#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D uTextureUnit0;

varying vec4 vColor;
varying vec2 vTexCoord;

void main() {
    gl_FragColor = texture2D(uTextureUnit0, vTexCoord) * vColor;
}
