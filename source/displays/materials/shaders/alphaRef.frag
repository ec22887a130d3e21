#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D uTextureUnit0;

varying vec4 vColor;
varying vec2 vTexCoord;

void main() {
    vec4 color = texture2D(uTextureUnit0, vTexCoord) * vColor;
    if (color.a < 0.5)
        discard;
    gl_FragColor = vec4(color.rgb, 1.0);
}
