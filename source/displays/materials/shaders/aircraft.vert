#ifdef GL_ES
attribute vec4 inVertexPosition;
attribute vec3 inVertexNormal;
attribute vec4 inVertexColor;
attribute vec2 inTexCoord0;
#define gl_Vertex inVertexPosition
#define gl_Normal inVertexNormal
#define gl_Color inVertexColor
#endif

uniform mat4 uWVPMatrix;
uniform mat4 uNMatrix;
uniform float uThickness;

varying vec3 vNormal;
varying vec4 vColor;
varying vec2 vTexCoord;

void main() {
    gl_Position = uWVPMatrix * gl_Vertex;
    vNormal = (uNMatrix * vec4(gl_Normal, 0.0)).xyz;
    vColor = gl_Color;
#ifdef GL_ES
    vTexCoord = inTexCoord0;
#else
    vTexCoord = gl_MultiTexCoord0.xy;
#endif
    gl_PointSize = uThickness;
}
