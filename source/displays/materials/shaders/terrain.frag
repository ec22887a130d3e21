#ifdef GL_ES
precision highp float;
#endif

uniform sampler2D uTextureUnit0;
uniform float uAltitude;
uniform float uMinH;
uniform float uMaxH;
uniform vec3 lightDir;

varying vec3 vNormal;
varying float vElevation;
varying float vKnown;

const vec3 water = vec3(0.0, 0.19608, 0.42353);
const vec3 unknown = vec3(0.33, 0.31, 0.36);
const vec3 red = vec3(1.0, 0.0, 0.0);
const vec3 yellow = vec3(1.0, 1.0, 0.0);

void main() {
    float progress = clamp((vElevation - uMinH) / (uMaxH - uMinH), 0.0, 1.0);
    vec3 color = texture2D(uTextureUnit0, vec2(progress, 0.5)).rgb;
    float brightness = 0.25 + 0.75 * max(dot(-lightDir, vNormal), 0.0);
    if (abs(vElevation) < 0.5)
        color = water;
    // How far the aircraft is above this place, in metres: 600 feet and less warn.
    float clearance = uAltitude - vElevation;
    if (clearance < 183.0) {
        vec3 warning = mix(red, yellow, min(max(clearance - 30.0, 0.0) / 153.0, 1.0));
        color = mix(warning, color, clamp((clearance - 133.0) / 50.0, 0.2, 1.0));
    }
    if (vKnown < 0.99) // what nobody has measured is no sea
        color = mix(unknown, color, vKnown * vKnown);
    gl_FragColor = vec4(brightness * color, 1.0);
}
