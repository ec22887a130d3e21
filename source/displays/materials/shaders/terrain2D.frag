#ifdef GL_ES
precision highp float;
#endif

// Heights in units of 255 metres: in them green counts 256 and blue one.
uniform sampler2D uTextureUnit0; // alpha and red: the normal's parts east and north; green and blue: the height
uniform sampler2D uTextureUnit1; // the gradient of colours, from low to high
uniform float uMinH;
uniform float uMaxH;
uniform float uAltitude;
uniform vec3 lightDir;
uniform float uNormalAlpha;
uniform float uWarnAlpha;
uniform vec2 uImageSize;

varying vec2 vTexCoord;

const float heightOffset = 47.05882; // 12000 metres
const vec3 water = vec3(0.0, 0.19608, 0.42353);
const vec3 red = vec3(1.0, 0.0, 0.0);
const vec3 yellow = vec3(1.0, 1.0, 0.0);

// Normal east, normal north, height.
vec3 unpack(vec2 texel) {
    vec4 bytes = texture2D(uTextureUnit0, (texel + 0.5) / uImageSize);
    return vec3((bytes.a - 0.5) * 2.0, (bytes.r - 0.5) * 2.0, bytes.g * 256.0 + bytes.b - heightOffset);
}

void main() {
    // Heights are packed into two channels, so the picture can't be filtered by the driver.
    vec2 place = vTexCoord * uImageSize - 0.5;
    vec2 texel = floor(place);
    vec2 share = place - texel;
    vec3 northWest = unpack(texel);
    vec3 northEast = unpack(texel + vec2(1.0, 0.0));
    vec3 southWest = unpack(texel + vec2(0.0, 1.0));
    vec3 southEast = unpack(texel + vec2(1.0, 1.0));
    // Ground that nobody knows is 12000 metres deep in the picture: a hatch, never to be taken for the sea.
    if (min(min(northWest.z, northEast.z), min(southWest.z, southEast.z)) < -47.0) {
        float hatch = 1.0 - step(2.0, mod(gl_FragCoord.x + gl_FragCoord.y, 20.0));
        gl_FragColor = vec4(0.0, 0.0, 0.0, 0.22 * hatch * uNormalAlpha);
        return;
    }
    vec3 ground = mix(mix(northWest, northEast, share.x), mix(southWest, southEast, share.x), share.y);
    float elevation = ground.z;
    vec3 normal = vec3(ground.x, sqrt(max(1.0 - ground.x * ground.x - ground.y * ground.y, 0.0)), ground.y);

    float progress = clamp((elevation - uMinH) / (uMaxH - uMinH), 0.0, 1.0);
    vec3 color = texture2D(uTextureUnit1, vec2(progress, 0.5)).rgb;
    float brightness = 0.25 + 0.75 * max(dot(-lightDir, normal), 0.0);
    float alpha = uNormalAlpha;
    if (abs(elevation) < 0.002)
        color = water;
    float clearance = uAltitude - elevation;
    if (clearance < 0.71765) { // 183 metres
        float nearness = max(clearance - 0.11765, 0.0) / 0.6; // from 30 metres on, 153 more
        vec3 warning = mix(red, yellow, nearness);
        float plain = clamp((clearance - 0.52157) / 0.19608, 0.2, 1.0); // 133 metres, 50 more
        color = mix(warning, color, plain);
        alpha = uWarnAlpha;
    }
    gl_FragColor = vec4(color * brightness, alpha);
}
