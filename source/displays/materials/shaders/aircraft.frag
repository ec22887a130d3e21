#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D uTextureUnit0;
uniform vec4 uDiffuseColor;

varying vec3 vNormal;
varying vec4 vColor;
varying vec2 vTexCoord;

// From above and behind the viewer's left shoulder, whatever way the world's light goes.
const vec3 toLight = vec3(-0.35, 0.85, -0.39);

void main() {
    float light = 0.45 + 0.55 * max(dot(normalize(vNormal), toLight), 0.0);
    gl_FragColor = vec4(texture2D(uTextureUnit0, vTexCoord).rgb * vColor.rgb * uDiffuseColor.rgb * light, 1.0);
}
