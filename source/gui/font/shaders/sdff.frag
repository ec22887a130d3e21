#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D uTextureUnit0;
uniform float uSmoothing;
uniform float uFatness;
uniform float uBorderSize; // -1.0 for no outline
uniform vec4 uBorderColor;
#ifdef SHADOWS
uniform vec2 uShadowOffset;
uniform float uShadowSmoothing;
uniform vec4 uShadowColor;
#endif

varying vec4 vColor;
varying vec2 vTexCoord;

void main()
{
    float distance = texture2D(uTextureUnit0, vTexCoord).a;
    float alpha = smoothstep(uFatness - uSmoothing, uFatness + uSmoothing, distance);
    float borderPos = uFatness + uBorderSize;
    float borderFactor = smoothstep(borderPos - uSmoothing, borderPos + uSmoothing, distance);
    vec4 text = mix(uBorderColor, vColor, borderFactor);
    text.a = alpha * vColor.a;
#ifdef SHADOWS
    float shadowDistance = texture2D(uTextureUnit0, vTexCoord - uShadowOffset).a;
    float shadowAlpha = smoothstep(uFatness - uShadowSmoothing, uFatness + uShadowSmoothing, shadowDistance);
    gl_FragColor = mix(vec4(uShadowColor.rgb, uShadowColor.a * shadowAlpha), text, text.a);
#else
    gl_FragColor = text;
#endif
}
